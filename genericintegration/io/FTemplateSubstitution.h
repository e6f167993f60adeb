#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <unordered_map>

#include "genericintegration/io/FTagReport.h"

class FTemplateKeys;
class FTextPlaces;
struct FTemplateTag;

/**
 * Replaces the tags of templates by texts.
 *
 * The template is walked over once, from left to right; what goes in is never searched for tags. A tag that no row
 * answers is left out. An unterminated tag is left out with all that follows it.
 *
 * A template takes time linear in what is read and written, whatever the number of rows. It is passed on in pieces,
 * and never copied as a whole.
 */
class FTemplateSubstitution {
 public:
    /**
     * Gives the text of a row. Called at most once for a row and template, when its first tag is reached. It may do
     * anything, even change the template, but not run this object.
     */
    using Values = std::function<QString(int row)>;
    /** Takes the next piece of the result. The piece dies with the call, and may end between two surrogates. */
    using Output = std::function<void(QStringView piece)>;
    /** Hears of each tag, in order, after its replacement has gone out. */
    using Observer = std::function<void(const FTagReport& report)>;

    /** The keys must outlive this object. */
    FTemplateSubstitution(const FTemplateKeys& keys, Values values, Output output);

    /** Writes each "\n" of a template, also one in a name, as "\r\n", even behind a "\r". Values go out as they are. */
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
