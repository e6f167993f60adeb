#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <optional>
#include <variant>

using FFormatValue = std::variant<double, qint64, QString>;

/**
 * `value` in a format of printf, always in the C locale, such as "%10.4f" or "F = %+.3E N".
 * The format holds one conversion, of d i e E f F g G x X o for a number and s for a text, with flags (- + blank # 0),
 * width and precision up to 1000, and `%%` for a percent sign. d i x X o take a double that is whole as well; x X o
 * give a negative number as its 64 bits. Widths count UTF-16 units. Anything else gives nothing, and `error` then
 * tells what is wrong with the format or the value.
 */
MERIX_EXPORT std::optional<QString> formatNumber(const QString& format, const FFormatValue& value, QString& error);
