#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

#include <QString>

class FResultText;

/** A column of a line, which may be missing. */
struct FColumn {
    bool exists = false;
    bool isNumber = false;
    double number = std::numeric_limits<double>::quiet_NaN();
    FByteRange range{};   //!< in the whole text: the column if it was found as a number; else an empty range before it
    QString text{};       //!< of a column between separators
    int units = 0;        //!< UTF-16 units from the start of the range to the column
    FFoundFlags flags{};  //!< only of the line
    QString oddity{};     //!< the text that raised a flag

    static FColumn missing(qint64 offset);

    /** A number, without flags. Its text is decoded only when needed. */
    static FColumn found(std::string_view text, FByteRange number);

    /** A text between separators, which is read as a number. */
    static FColumn found(const QString& text, qint64 offset, int units);

    /** Makes it the result of the search in a text, whose flags are kept. The line is numbered from 0. */
    void fill(FFoundValue& value, const FResultText& in, qint64 line, qint64 lineBegin) const;
};
