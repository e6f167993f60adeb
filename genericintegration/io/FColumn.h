#pragma once

#include <QString>

#include "genericintegration/io/FFoundValue.h"

class FResultText;

/// A column of a line, or that it is missing.
struct FColumn {
    bool exists = false;
    QString text{};
    bool isNumber = false;
    double number = std::numeric_limits<double>::quiet_NaN();
    qint64 offset = 0;    ///< in the whole text, in bytes: the column's begin, or a place before it in the line
    int units = 0;        ///< UTF-16 units from there to the column's begin
    FFoundFlags flags{};  ///< the suspicious ones

    static FColumn missing(qint64 offset, FFoundFlags flags);

    /// The text is read as a number.
    static FColumn found(const QString& text, qint64 offset, int units, FFoundFlags flags);

    /// The column as what was found in a text, with its place there.
    FFoundValue value(const FResultText& in) const;
};
