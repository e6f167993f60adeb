#include "host/script/FNumberFormat.h"

#include "host/core/FNumberText.h"
#include "host/core/FQuotedText.h"

#include <QRegularExpression>

#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr int largestWidth = 1000;
constexpr int defaultPrecision = 6;

/** One conversion of a format, and the text around it. */
struct FConversion {
    QString written;
    QString flags;
    int width = 0;
    int precision = -1;
    QChar letter;
    QString before;
    QString after;

    bool has(char flag) const { return flags.contains(QLatin1Char(flag)); }
    bool isOneOf(const char* letters) const { return QLatin1String(letters).contains(letter); }
};

/** What a conversion makes of a value, before it is padded. */
struct FDigits {
    QString sign;  //!< with the 0x of a hexadecimal number
    QString body;
    bool mayBeginWithZeros = false;
};

bool fail(QString& error, const QString& message) {
    error = message;
    return false;
}

bool readSize(const QString& digits, int& size) {
    bool fits = true;
    size = digits.isEmpty() ? 0 : digits.toInt(&fits);
    return fits && size <= largestWidth;
}

bool readConversion(const QRegularExpressionMatch& match, FConversion& conversion, QString& error) {
    conversion.written = match.captured();
    conversion.flags = match.captured(1);
    conversion.letter = match.captured(5).isEmpty() ? QChar() : match.captured(5).front();
    if (conversion.letter.isNull() || !conversion.isOneOf("dieEfFgGxXos")) {
        return fail(error,
                    QStringLiteral("the conversion %1 of a format isn't known: use one of d i e E f F g G x X o, or "
                                   "s for a text")
                        .arg(quoteText(conversion.written)));
    }
    if (!readSize(match.captured(2), conversion.width) || !readSize(match.captured(4), conversion.precision)) {
        return fail(error, QStringLiteral("the width or precision of %1 is larger than %2")
                               .arg(quoteText(conversion.written), QString::number(largestWidth)));
    }
    if (match.captured(3).isEmpty()) {
        conversion.precision = -1;
    }
    return true;
}

/** Takes a format apart. Each percent sign begins a match, so none is left over. */
bool readFormat(const QString& format, FConversion& conversion, QString& error) {
    static const QRegularExpression pattern(QStringLiteral(R"(%([-+ #0]*)([0-9]*)((?:\.([0-9]*))?)(.?))"),
                                            QRegularExpression::DotMatchesEverythingOption);
    bool isFound = false;
    int end = 0;
    for (auto matches = pattern.globalMatch(format); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        QString& text = isFound ? conversion.after : conversion.before;
        text += format.midRef(end, match.capturedStart() - end);
        end = match.capturedEnd();
        if (match.captured() == QLatin1String("%%")) {
            text += QLatin1Char('%');
            continue;
        }
        if (isFound) {
            return fail(error, QStringLiteral("the format %1 has more than one conversion: it formats one value")
                                   .arg(quoteText(format)));
        }
        isFound = true;
        if (!readConversion(match, conversion, error)) {
            return false;
        }
    }
    (isFound ? conversion.after : conversion.before) += format.midRef(end);
    return isFound ||
           fail(error, QStringLiteral("the format %1 has no conversion: write one, such as %10.4f, for the value")
                           .arg(quoteText(format)));
}

QString signOf(bool isNegative, const FConversion& conversion) {
    if (isNegative) {
        return QStringLiteral("-");
    }
    if (conversion.has('+')) {
        return QStringLiteral("+");
    }
    return conversion.has(' ') ? QStringLiteral(" ") : QString();
}

QString toChars(double value, std::chars_format format, int precision) {
    std::array<char, largestWidth + 400> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    return QString::fromLatin1(buffer.data(), static_cast<int>(result.ptr - buffer.data()));
}

void addPoint(QString& digits) {
    if (digits.contains(QLatin1Char('.'))) {
        return;
    }
    const int exponent = digits.indexOf(QLatin1Char('e'));
    digits.insert(exponent < 0 ? digits.size() : exponent, QLatin1Char('.'));
}

/** The form of %#g, which keeps the zeros at the end that %g drops. */
QString generalWithZeros(double value, int precision) {
    const int digits = std::max(precision, 1);
    const QString scientific = toChars(value, std::chars_format::scientific, digits - 1);
    const int exponent = scientific.mid(scientific.indexOf(QLatin1Char('e')) + 1).toInt();
    const bool isFixed = exponent >= -4 && exponent < digits;
    return isFixed ? toChars(value, std::chars_format::fixed, digits - 1 - exponent) : scientific;
}

QString magnitudeText(double value, const FConversion& conversion) {
    const int precision = conversion.precision < 0 ? defaultPrecision : conversion.precision;
    if (!std::isfinite(value)) {
        return std::isnan(value) ? QStringLiteral("nan") : QStringLiteral("inf");
    }
    QString digits;
    if (conversion.isOneOf("gG")) {
        digits = conversion.has('#') ? generalWithZeros(value, precision)
                                     : toChars(value, std::chars_format::general, precision);
    } else {
        digits = toChars(value, conversion.isOneOf("eE") ? std::chars_format::scientific : std::chars_format::fixed,
                         precision);
    }
    if (conversion.has('#')) {
        addPoint(digits);
    }
    return digits;
}

FDigits doubleDigits(double value, const FConversion& conversion) {
    FDigits digits;
    digits.sign = signOf(std::signbit(value) && !std::isnan(value), conversion);
    digits.body = magnitudeText(std::fabs(value), conversion);
    if (conversion.letter.isUpper()) {
        digits.body = digits.body.toUpper();
    }
    digits.mayBeginWithZeros = std::isfinite(value);
    return digits;
}

FDigits integerDigits(qint64 value, const FConversion& conversion) {
    const bool isDecimal = conversion.isOneOf("di");
    const int base = isDecimal ? 10 : conversion.letter == 'o' ? 8 : 16;
    const bool isNegative = isDecimal && value < 0;
    const quint64 bits = static_cast<quint64>(value);
    FDigits digits;
    digits.sign = isDecimal ? signOf(isNegative, conversion) : QString();
    if (value != 0 || conversion.precision != 0) {
        digits.body = QString::number(isNegative ? 0 - bits : bits, base);
    }
    digits.body = digits.body.rightJustified(conversion.precision, QLatin1Char('0'));
    if (conversion.has('#') && base == 8 && !digits.body.startsWith(QLatin1Char('0'))) {
        digits.body.prepend(QLatin1Char('0'));
    }
    if (conversion.has('#') && base == 16 && value != 0) {
        digits.sign = QStringLiteral("0x");
    }
    if (conversion.letter == 'X') {
        digits.sign = digits.sign.toUpper();
        digits.body = digits.body.toUpper();
    }
    digits.mayBeginWithZeros = conversion.precision < 0;
    return digits;
}

QString padded(const FDigits& digits, const FConversion& conversion) {
    const int width = conversion.width;
    if (conversion.has('-')) {
        return (digits.sign + digits.body).leftJustified(width);
    }
    if (conversion.has('0') && digits.mayBeginWithZeros) {
        return digits.sign + digits.body.rightJustified(width - digits.sign.size(), QLatin1Char('0'));
    }
    return (digits.sign + digits.body).rightJustified(width);
}

QString wrongValue(const FConversion& conversion, const char* wanted, const QString& value) {
    return QStringLiteral("the conversion %1 of a format needs %2, the value is %3")
        .arg(quoteText(conversion.written), QLatin1String(wanted), value);
}

bool wholeNumber(const FFormatValue& value, qint64& whole) {
    constexpr double bound = 9223372036854775808.0;
    if (const auto* integer = std::get_if<qint64>(&value)) {
        whole = *integer;
        return true;
    }
    const double number = std::get<double>(value);
    const bool isWhole = number >= -bound && number < bound && number == std::trunc(number);
    if (isWhole) {
        whole = static_cast<qint64>(number);
    }
    return isWhole;
}

bool digitsOf(const FFormatValue& value, const FConversion& conversion, FDigits& digits, QString& error) {
    const auto* text = std::get_if<QString>(&value);
    if (conversion.letter == 's') {
        if (text == nullptr) {
            return fail(error, wrongValue(conversion, "a text", QStringLiteral("a number")));
        }
        digits.body = conversion.precision < 0 ? *text : text->left(conversion.precision);
        return true;
    }
    if (text != nullptr) {
        return fail(error, wrongValue(conversion, "a number", QStringLiteral("a text")));
    }
    const auto* number = std::get_if<double>(&value);
    if (conversion.isOneOf("eEfFgG")) {
        digits = doubleDigits(number != nullptr ? *number : static_cast<double>(std::get<qint64>(value)), conversion);
        return true;
    }
    qint64 whole = 0;
    if (!wholeNumber(value, whole)) {
        return fail(error, wrongValue(conversion, "a whole number", numberText(*number)));
    }
    digits = integerDigits(whole, conversion);
    return true;
}

}  // namespace

std::optional<QString> formatNumber(const QString& format, const FFormatValue& value, QString& error) {
    FConversion conversion;
    FDigits digits;
    if (!readFormat(format, conversion, error) || !digitsOf(value, conversion, digits, error)) {
        return std::nullopt;
    }
    return conversion.before + padded(digits, conversion) + conversion.after;
}
