#pragma once

#include "genericintegration/io/FTagReport.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <unordered_map>

class FTemplateKeys;
class FTextPlaces;
struct FTemplateTag;

/**
 * Replaces the tags of templates by texts.
 *
 * It reads a template once, from left to right, and never searches replacements for tags. It drops a tag that no row
 * matches, and an unterminated tag together with the text after it.
 *
 * Time is linear in the size of input and output, whatever the number of rows. The output is passed on in pieces,
 * without a copy of the whole.
 */
class FTemplateSubstitution {
 public:
    /**
     * Returns the text of a row. Called at most once for a row and template, when its first tag is reached. It may do
     * anything, even change the template, except run this object.
     */
    using Values = std::function<QString(int row)>;
    /** Takes the next piece of the result. The piece is valid only during the call, and may end between two surrogates.
     */
    using Output = std::function<void(QStringView piece)>;
    /** Called for each tag, in order, after the output of its replacement. */
    using Observer = std::function<void(const FTagReport& report)>;

    /** The keys must outlive this object. */
    FTemplateSubstitution(const FTemplateKeys& keys, Values values, Output output);

    /** Writes each "\n" of a template, also in a name, as "\r\n", even after a "\r". Values are written unchanged. */
    void setForceWindowsLineEndings(bool force) { mForceWindowsLineEndings = force; }

    void setObserver(Observer observer) { mObserver = std::move(observer); }

    /** Writes one template. */
    void run(const QString& text);

 private:
    void replace(const FTemplateTag& tag, FTextPlaces& places);
    void copy(QStringView piece);
    const QString& valueOf(int row);

    const FTemplateKeys& mKeys;
    Values mValues;
    Output mOutput;
    Observer mObserver;
    bool mForceWindowsLineEndings = false;
    std::unordered_map<int, QString> mTexts;
};
