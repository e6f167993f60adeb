#include "host/core/FNumberText.h"

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>

QString numberText(double value) {
    if (std::isnan(value)) {
        return QStringLiteral("NaN");
    }
    if (std::isinf(value)) {
        return value > 0 ? QStringLiteral("Inf") : QStringLiteral("-Inf");
    }
    std::array<char, 32> buffer;
    char* const end = buffer.data() + buffer.size();
    const bool plainDigits = std::fabs(value) < 1e15 && value == std::trunc(value);
    const auto result = plainDigits ? std::to_chars(buffer.data(), end, value, std::chars_format::fixed)
                                    : std::to_chars(buffer.data(), end, value);
    return QString::fromLatin1(buffer.data(), static_cast<int>(result.ptr - buffer.data()));
}

std::optional<double> numberFromText(QStringView text) {
    const QByteArray bytes = text.toLatin1();
    double value = 0.0;
    const auto result = std::from_chars(bytes.begin(), bytes.end(), value);
    if (result.ptr != bytes.end() || result.ec == std::errc::invalid_argument) {
        return std::nullopt;
    }
    // The standard leaves the value alone when it doesn't fit, and doesn't tell too large from too small.
    return result.ec == std::errc::result_out_of_range ? bytes.toDouble() : value;
}
