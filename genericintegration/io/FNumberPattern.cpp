#include "genericintegration/io/FNumberPattern.h"

#include "host/run/FUtf8.h"

#include <QRegExp>
#include <QtEndian>

#include <bit>
#include <charconv>
#include <cmath>

namespace FNumberPattern {
namespace {

constexpr quint64 everyByte(unsigned char byte) {
    return byte * 0x0101010101010101U;
}

/** Sets the upper bit of each of eight bytes that a number may start with: from '+' to '9', or not ASCII. */
quint64 beginnings(quint64 bytes) {
    const quint64 ascii = bytes & everyByte(0x7F);
    const quint64 fromPlus = ascii + everyByte(0x80 - '+');
    const quint64 behindNine = ascii + everyByte(0x80 - '9' - 1);
    return ((fromPlus & ~behindNine) | bytes) & everyByte(0x80);
}

/** The first place, at or after an offset, where a number may start or fewer than eight bytes are left. */
qint64 skip(std::string_view line, qint64 offset) {
    constexpr qint64 step = 8;
    for (; offset + step <= static_cast<qint64>(line.size()); offset += step) {
        const quint64 found = beginnings(qFromLittleEndian<quint64>(line.data() + offset));
        if (found != 0) {
            return offset + std::countr_zero(found) / step;
        }
    }
    return offset;
}

/** Finds the end of a number in a line. */
class FNumberScan {
 public:
    explicit FNumberScan(std::string_view line) : mLine(line) {}

    /** End of the number that starts at an offset; the offset itself if there is none. */
    qint64 numberEnd(qint64 begin) const {
        const qint64 whole = behindSign(begin);
        qint64 end = digitsEnd(whole);
        const bool hasWhole = end > whole;
        const qint64 fraction = at(end) == '.' ? digitsEnd(end + 1) : end;
        if (fraction > end + 1) {
            end = fraction;
        } else if (!hasWhole) {
            return begin;
        }
        return exponentEnd(end);
    }

 private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }
    char at(qint64 offset) const {
        return offset < static_cast<qint64>(mLine.size()) ? mLine[static_cast<size_t>(offset)] : '\0';
    }
    qint64 behindSign(qint64 offset) const { return offset + (at(offset) == '-' || at(offset) == '+'); }

    qint64 digitsEnd(qint64 offset) const {
        for (;;) {
            while (offset < static_cast<qint64>(mLine.size()) && isDigit(mLine[static_cast<size_t>(offset)])) {
                ++offset;
            }
            if (FUtf8::isAscii(at(offset))) {
                return offset;
            }
            qint64 after = offset;
            const char32_t digit = FUtf8::next(mLine, after);
            if (QChar::requiresSurrogates(digit) || !QChar::isDigit(digit)) {
                return offset;
            }
            offset = after;
        }
    }

    qint64 exponentEnd(qint64 end) const {
        if (at(end) != 'e' && at(end) != 'E') {
            return end;
        }
        const qint64 digits = behindSign(end + 1);
        const qint64 after = digitsEnd(digits);
        return after > digits ? after : end;
    }

    std::string_view mLine;
};

}  // namespace

const QRegExp& pattern() {
    static const QRegExp number(QStringLiteral("[-+]?(\\.\\d+|\\d+(\\.\\d+)?)([Ee][-+]?\\d+)?"));
    return number;
}

FByteRange next(std::string_view line, qint64 offset) {
    const FNumberScan scan(line);
    for (offset = skip(line, offset); offset < static_cast<qint64>(line.size()); offset = skip(line, offset + 1)) {
        const qint64 end = scan.numberEnd(offset);
        if (end > offset) {
            return {offset, end};
        }
    }
    return {-1, -1};
}

// Both functions round correctly, but only QString decides whether a tiny number is out of range.
std::optional<double> toDouble(std::string_view number) {
    const char* const end = number.data() + number.size();
    double value = 0;
    const auto [after, error] = std::from_chars(number.data() + (number.front() == '+' ? 1 : 0), end, value);
    const bool isZero = value == 0 && number.find_first_of("123456789") == std::string_view::npos;
    if (error == std::errc() && after == end && (std::isnormal(value) || isZero)) {
        return value;
    }
    bool isNumber = false;
    value = FUtf8::decode(number).toDouble(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

}  // namespace FNumberPattern
