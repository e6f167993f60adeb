#pragma once

#include "genericintegration/marking/FTextRange.h"

#include <QString>

#include <memory>
#include <optional>

class FResultSample;
class FSeparator;
struct FSeparatorSettings;

/** The number at a place of a sample, in the line that the reader reads. */
class FPointedNumber {
 public:
    /** Nothing if the reader can find no number there. */
    static std::optional<FPointedNumber> at(const FResultSample& sample, const FSeparatorSettings& separators,
                                            int position);

    qint64 line() const { return mLine; }  //!< from 0
    int start() const { return mStart; }   //!< in the line, in UTF-16 units
    int length() const { return mLength; }
    const QString& lineText() const { return mText; }
    /** The number whose exponent it is, as in 1.5D+03, where the reader finds two numbers; itself in other places. */
    FPointedNumber base() const;
    /** The text of the line between the number before it and this one. */
    QString textBefore() const;
    /** Its column if the search starts at a place of the line; -1 if it isn't found then. */
    int columnFrom(int start) const;

 private:
    FPointedNumber(QString line, qint64 number, std::shared_ptr<const FSeparator> separator);
    /** The column that begins at or contains a unit, in the line from a start on. */
    bool find(int unit, int start, int& column, int& begin, int& length) const;
    bool findNumber(int unit, int start, int& column, int& begin, int& length) const;
    bool findColumn(int unit, int start, int& column, int& begin, int& length) const;

    /** The end of a number with an exponent that the reader doesn't take as one. */
    int endWithExponent(FTextRange number) const;

    QString mText;
    qint64 mLine;
    std::shared_ptr<const FSeparator> mSeparator;  //!< null where numbers are columns
    int mStart = 0;
    int mLength = 0;
};
