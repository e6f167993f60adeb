#pragma once

#include <QFlags>
#include <QString>

#include <limits>

#include "genericintegration/io/FByteRange.h"

class FResultText;

/** What was odd when a value was searched. None of it keeps the search from going on. */
enum class FFoundFlag : quint32 {
    AnchorMissing = 0x1,   //!< counted from the text's top instead, for a line below 0 from its bottom
    LineBeyondEnd = 0x2,   //!< no such line; for a line below 0, the second line was read instead
    ColumnMissing = 0x4,   //!< the line ends before the column
    NotANumber = 0x8,      //!< the text found can't be read as a number
    FewerRows = 0x10,      //!< the average is over fewer rows than wished
    CutExponent = 0x100,   //!< a number like 1.0D+05 or 1.2-105, cut before its exponent
    Stars = 0x200,         //!< asterisks in the place of a number, as they stand for one too large to print
    NanOrInf = 0x400,      //!< NaN or Inf in the place of a number
    DecimalComma = 0x800,  //!< a number like 3,14
    TouchesText = 0x1000,  //!< a number that touches a letter before it or another number
};
Q_DECLARE_FLAGS(FFoundFlags, FFoundFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(FFoundFlags)

/** The flags of a number that may not be what the user means. */
constexpr FFoundFlags SuspiciousFlags = FFoundFlag::CutExponent | FFoundFlag::Stars | FFoundFlag::NanOrInf |
                                        FFoundFlag::DecimalComma | FFoundFlag::TouchesText;

/** What the search for a value found. */
struct FFoundValue {
    double number = std::numeric_limits<double>::quiet_NaN();  //!< of an average: the mean
    FByteRange range{};                                        //!< of a text that was found as a number; else empty
    QString separated{};                                       //!< a text found between separators
    qint64 line = -1;    //!< where the text was taken or its column is missing, from 1; -1 when there is no such line
    qint64 column = -1;  //!< of the text's begin in the whole line, from 1, in UTF-16 units; -1 when missing
    qint64 length = -1;  //!< in UTF-16 units; -1 when the column is missing
    FFoundFlags flags{};

    /** What stands in the text that was searched. */
    QString textIn(const FResultText& text) const;
};
