#pragma once

#include <QStringView>

#include <optional>

/** One tag of a template: "<entry>", a name, "</entry>". Positions count UTF-16 units from the start of the text. */
struct FTemplateTag {
    qsizetype position = 0;  //!< of the opening "<"
    qsizetype length = 0;    //!< of the whole tag
    QStringView name;        //!< the text between the two markers, a view of the scanned text

    qsizetype end() const { return position + length; }
};

/**
 * Walks over the tags of a text from left to right.
 *
 * The name of a tag is every character between an opening marker and the first closing marker after it: untrimmed,
 * without escapes, with line breaks and further opening markers if there are any. A closing marker without an opening
 * one is plain text. An opening marker without a closing one ends the walk.
 *
 * The whole walk takes time linear in the text. The text must outlive the scanner and its tags.
 */
class FTemplateScanner {
 public:
    /** The sensitivity says whether "<ENTRY>" is a marker too. It says nothing about names. */
    explicit FTemplateScanner(QStringView text, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);

    /** The next tag, or nothing when none is left. */
    std::optional<FTemplateTag> next();

    /** Position of the opening marker without a closing one. Known once next() has come to its end. */
    std::optional<qsizetype> unterminated() const { return mUnterminated; }

 private:
    qsizetype find(QStringView marker, qsizetype from) const;

    QStringView mText;
    Qt::CaseSensitivity mSensitivity;
    qsizetype mPosition = 0;
    std::optional<qsizetype> mUnterminated;
};
