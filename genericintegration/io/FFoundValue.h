#pragma once

#include <QFlags>
#include <QString>

#include <limits>

#include "genericintegration/io/FByteRange.h"

class FResultText;

/** Oddities of the search for a value. None of them ends the search. */
enum class FFoundFlag : quint32 {
    AnchorMissing = 0x1,   //!< counted from the top of the text instead; for a line below 0, from its bottom
    LineBeyondEnd = 0x2,   //!< no such line; for a line below 0, the second line was read instead
    ColumnMissing = 0x4,   //!< the line ends before the column
    NotANumber = 0x8,      //!< the text found isn't a number
    FewerRows = 0x10,      //!< the average is over fewer rows than requested
    CutExponent = 0x100,   //!< a number like 1.0D+05 or 1.2-105, cut before its exponent
    Stars = 0x200,         //!< asterisks in place of a number too wide to print
    NanOrInf = 0x400,      //!< NaN or Inf in place of a number
    DecimalComma = 0x800,  //!< a number like 3,14
    TouchesText = 0x1000,  //!< a number next to another one, or right after a letter
};
Q_DECLARE_FLAGS(FFoundFlags, FFoundFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(FFoundFlags)

/** The flags of a number that may not be the one that the user means. */
constexpr FFoundFlags suspiciousFlags = FFoundFlag::CutExponent | FFoundFlag::Stars | FFoundFlag::NanOrInf |
                                        FFoundFlag::DecimalComma | FFoundFlag::TouchesText;

/** Result of the search for a value. */
struct FFoundValue {
    double number = std::numeric_limits<double>::quiet_NaN();  //!< of an average: the mean
    FByteRange range{};                                        //!< of a text found as a number; else empty
    QString separated{};                                       //!< a text found between separators
    qint64 line = -1;    //!< the line of the text or of the missing column, from 1; -1 if there is no such line
    qint64 column = -1;  //!< start of the text in the whole line, from 1, in UTF-16 units; -1 if missing
    qint64 length = -1;  //!< in UTF-16 units; -1 if the column is missing
    FFoundFlags flags{};

    /** The text found. `text` is the one that was searched. */
    QString textIn(const FResultText& text) const;
};
