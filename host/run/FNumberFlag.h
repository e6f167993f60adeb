#pragma once

#include "host/core/FExport.h"

#include <QFlags>
#include <QStringList>

/** What was unusual when a number was read from a file. None of it changes the number. */
enum class FNumberFlag : quint32 {
    AnchorMissing = 0x1,             //!< counted from the top of the text instead; for a line below 0, from its bottom
    LineBeyondEnd = 0x2,             //!< no such line; for a line below 0, another one was read instead
    ColumnMissing = 0x4,             //!< the line ends before the column
    NotANumber = 0x8,                //!< the text found isn't a number
    FewerRows = 0x10,                //!< the average is over fewer rows than requested
    NoRows = 0x20,                   //!< an average over 0 rows was requested
    SeparatorInvalid = 0x40,         //!< the separator isn't a valid regular expression
    SeparatorTooSlow = 0x80,         //!< the separator needs too much time for this line, which was read as one column
    CutExponent = 0x100,             //!< a number like 1.0D+05 or 1.2-105, cut before its exponent
    Stars = 0x200,                   //!< asterisks in place of a number too wide to print
    NanOrInf = 0x400,                //!< NaN or Inf in place of a number
    DecimalComma = 0x800,            //!< a number like 3,14
    LetterBefore = 0x1000,           //!< a letter directly before the number, as in CO2
    PointExponent = 0x2000,          //!< a number like 1.E+06, cut before its point
    SpacedExponent = 0x4000,         //!< an exponent separated by blanks, or a power of ten as in 1.5 x 10^6
    SpacedSign = 0x8000,             //!< a minus sign that wasn't read: separated by blanks, or U+2212
    LetterAfter = 0x10000,           //!< a unit or other letters directly after the number
    CutAtEdge = 0x20000,             //!< digits continue right beside the number: it was cut, or touches its neighbour
    Shifted = 0x40000,               //!< something suspicious earlier in the line may have shifted the columns
    ZeroBytes = 0x80000,             //!< the file contains zero bytes: most likely UTF-16 without a byte order mark
    ThousandsSeparator = 0x200000,   //!< a number like 1,234.5 or 1'234.5, cut before its separator
    OnlyCarriageReturns = 0x100000,  //!< the file's lines end with CR alone, so that it counts as one line
    FileNotRead = 0x400000,          //!< nothing was read from the file: it is missing, empty or can't be read
};
Q_DECLARE_FLAGS(FNumberFlags, FNumberFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(FNumberFlags)

/** Flags of the text around a number: the number may not be the one that the file contains. */
constexpr FNumberFlags suspiciousFlags =
    FNumberFlag::CutExponent | FNumberFlag::Stars | FNumberFlag::NanOrInf | FNumberFlag::DecimalComma |
    FNumberFlag::LetterBefore | FNumberFlag::PointExponent | FNumberFlag::SpacedExponent | FNumberFlag::SpacedSign |
    FNumberFlag::LetterAfter | FNumberFlag::CutAtEdge | FNumberFlag::Shifted | FNumberFlag::ThousandsSeparator;

/** Flags that concern the whole file rather than one number. */
constexpr FNumberFlags fileFlags =
    FNumberFlag::SeparatorInvalid | FNumberFlag::ZeroBytes | FNumberFlag::OnlyCarriageReturns;

/** The names of flags for lists and scripts, such as "exponent" and "unit". */
MERIX_EXPORT QStringList namesOf(FNumberFlags flags);
