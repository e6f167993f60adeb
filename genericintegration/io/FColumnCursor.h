#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FColumn.h"
#include "genericintegration/io/FSeparatorWalk.h"

#include <QString>

#include <optional>
#include <string_view>

/**
 * Finds the columns of one line as FGenIntReader::findValue does, and passes over each only once. In find-numbers mode
 * it decodes nothing but the numbers. It skips white space at the start of the line.
 */
class FColumnCursor {
 public:
    /**
     * A null separator means find-numbers mode. Text and separator must outlive this object.
     *
     * @param mayBeSuspicious  false if FSuspicion::ofText() can't find anything in the line, to save the check
     */
    FColumnCursor(std::string_view text, FByteRange line, const FSeparator* separator, bool mayBeSuspicious = true);
    Q_DISABLE_COPY_MOVE(FColumnCursor)

    /** Returns a column; below 0 counts as 0. Each call must be for the same column as the last one, or a later one. */
    FColumn seek(int column);

 private:
    FColumn seekNumber(int column);
    FColumn seekSeparated(int column);
    void passNumber();
    void noteShift(FFoundFlags flags, const QString& oddity);
    void seekFused(int begin, int end);

    std::string_view mText;
    FByteRange mLine;
    FByteRange mNumber;  //!< the last number passed
    QString mDecoded;
    std::optional<FSeparatorWalk> mWalk;
    int mPassed = 0;  //!< number of numbers or separators passed
    bool mEnded = false;
    bool mMayBeSuspicious;
    bool mIsSplitAtBlanks = false;
    FFoundFlags mFlags{};  //!< of the line so far
    QString mOddity;       //!< the text that raised the first of them
};
