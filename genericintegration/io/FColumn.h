#pragma once

#include <QString>

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

class FResultText;

/** A column of a line, or that it is missing. */
struct FColumn {
    bool exists = false;
    bool isNumber = false;
    double number = std::numeric_limits<double>::quiet_NaN();
    FByteRange range{};   //!< in the whole text: the column, if it was found as a number; else a place before it
    QString text{};       //!< of a column that wasn't found as a number
    int units = 0;        //!< UTF-16 units from the range's begin to the column's
    FFoundFlags flags{};  //!< the suspicious ones

    static FColumn missing(qint64 offset, FFoundFlags flags);

    /** A number; its text isn't decoded before it is needed. */
    static FColumn found(std::string_view text, FByteRange number, FFoundFlags flags);

    /** The text between separators, which is read as a number. */
    static FColumn found(const QString& text, qint64 offset, int units);

    /** The column as what was found in a text, with its place there. Its line is numbered from 0. */
    FFoundValue value(const FResultText& in, qint64 line, qint64 lineBegin) const;
};
