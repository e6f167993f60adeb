#include "genericintegration/io/FNumberSurroundings.h"

#include "genericintegration/io/FAsciiText.h"
#include "host/run/FUtf8.h"

#include <QChar>

using namespace FAsciiText;

bool FNumberSurroundings::isPlainAfter(std::string_view text, qint64 end) {
    if (!isBlank(at(text, end))) {
        return false;
    }
    const qint64 limit = end + 3;
    while (end < limit && at(text, end) == ' ' && end < static_cast<qint64>(text.size())) {
        ++end;
    }
    constexpr std::string_view timesSigns = "xX*\xC2\xC3";
    const char next = at(text, end);
    return !isExponentLetter(next) && timesSigns.find(next) == std::string_view::npos;
}

bool FNumberSurroundings::isPlainBefore() const {
    const qint64 before = mNumber.begin - 1;
    if (mNumber.begin == mLineBegin) {
        return !isDigit(at(before)) && at(before) != '.';
    }
    return isBlank(at(before)) && at(blanksBegin(mNumber.begin) - 1) != '-';
}

FFoundFlags FNumberSurroundings::flags() const {
    FFoundFlags flags;
    const bool isCut = hasCutExponent();
    const bool isCutAtPoint = hasPointExponent();
    const bool isSpaced = spacedExponentEnd() > 0;
    flags.setFlag(FFoundFlag::CutExponent, isCut);
    flags.setFlag(FFoundFlag::PointExponent, isCutAtPoint);
    flags.setFlag(FFoundFlag::SpacedExponent, isSpaced);
    flags.setFlag(FFoundFlag::SpacedSign, hasSpacedSign() || hasForeignMinus());
    flags.setFlag(FFoundFlag::DecimalComma, (hasCommaAfter() || hasCommaBefore()) && !isUnderCommas());
    flags.setFlag(FFoundFlag::ThousandsSeparator, hasThousands() && !isUnderCommas());
    flags.setFlag(FFoundFlag::LetterBefore, hasLetterBefore());
    flags.setFlag(FFoundFlag::LetterAfter, !isCut && !isSpaced && hasLetterAfter());
    flags.setFlag(FFoundFlag::CutAtEdge, !isCut && isCutAtEdge());
    flags.setFlag(FFoundFlag::Stars, at(mNumber.end) == '*' && at(mNumber.end + 1) == '*');
    flags.setFlag(FFoundFlag::NanOrInf, at(mNumber.end) == '.' && at(mNumber.end + 1) == '#');
    return flags;
}

qint64 FNumberSurroundings::digitsEnd(qint64 offset) const {
    const qint64 limit = offset + longest;
    while (offset < limit && isDigit(at(offset))) {
        ++offset;
    }
    return offset;
}

qint64 FNumberSurroundings::blanksEnd(qint64 offset) const {
    const qint64 limit = std::min(offset + longest, static_cast<qint64>(mText.size()));
    while (offset < limit && (at(offset) == ' ' || at(offset) == '\t')) {
        ++offset;
    }
    return offset;
}

/** Start of the blanks that end before an offset, within the line. */
qint64 FNumberSurroundings::blanksBegin(qint64 offset) const {
    const qint64 limit = std::max(offset - longest, mLineBegin);
    while (offset > limit && (at(offset - 1) == ' ' || at(offset - 1) == '\t')) {
        --offset;
    }
    return offset;
}

/** Whether a letter of an exponent, with digits after it, is at an offset. */
bool FNumberSurroundings::isExponentAt(qint64 offset) const {
    return isExponentLetter(at(offset)) && isDigit(at(offset + 1 + isSign(at(offset + 1))));
}

bool FNumberSurroundings::hasCutExponent() const {
    if (hasExponent()) {
        return false;
    }
    const qint64 end = mNumber.end;
    return isExponentAt(end) ||
           (!isWhole() && isSign(at(end)) && isDigit(at(end + 1)) && at(digitsEnd(end + 1)) != '.');
}

bool FNumberSurroundings::hasPointExponent() const {
    const qint64 after = mNumber.end + 1;
    if (!isWhole() || at(mNumber.end) != '.') {
        return false;
    }
    return isExponentAt(after) || (isSign(at(after)) && isDigit(at(after + 1)) && at(digitsEnd(after + 1)) != '.');
}

/** End of "x 10^6", also with another sign of multiplication; 0 if there is none. */
qint64 FNumberSurroundings::powerOfTenEnd() const {
    const auto follows = [this](qint64 offset, std::string_view word) {
        return mText.substr(std::min(static_cast<size_t>(offset), mText.size()), word.size()) == word;
    };
    const auto lengthOf = [&follows](qint64 offset, std::initializer_list<std::string_view> words) {
        const auto* const found =
            std::find_if(words.begin(), words.end(), [&](std::string_view word) { return follows(offset, word); });
        return found == words.end() ? 0 : static_cast<qint64>(found->size());
    };
    const qint64 times = blanksEnd(mNumber.end);
    const qint64 timesEnd = times + lengthOf(times, {"x", "X", "*", "\u00D7", "\u00B7"});
    const qint64 ten = blanksEnd(timesEnd);
    if (timesEnd == times || !follows(ten, "10")) {
        return 0;
    }
    qint64 end = ten + 2;
    if (const qint64 power = lengthOf(end, {"^", "**"})) {
        end += power;
        return digitsEnd(end + isSign(at(end)));
    }
    const auto superscript = [&](qint64 offset) {
        return lengthOf(offset, {"\u207B", "\u2070", "\u00B9", "\u00B2", "\u00B3", "\u2074", "\u2075", "\u2076",
                                 "\u2077", "\u2078", "\u2079"});
    };
    while (const qint64 length = superscript(end)) {
        end += length;
    }
    return end > ten + 2 ? end : 0;
}

/** End of an exponent with blanks before or after its letter or sign, or of a power of ten; 0 if there is none. */
qint64 FNumberSurroundings::spacedExponentEnd() const {
    if (const qint64 end = powerOfTenEnd()) {
        return end;
    }
    const qint64 letter = blanksEnd(mNumber.end);
    if (hasExponent() || letter - mNumber.end > 3 || !isExponentLetter(at(letter))) {
        return 0;
    }
    const qint64 sign = blanksEnd(letter + 1);
    const bool hasSign = isSign(at(sign));
    const qint64 digits = blanksEnd(sign + hasSign);
    const qint64 end = digitsEnd(digits);
    const bool isSpaced = letter > mNumber.end || digits > letter + 1 + hasSign;
    const bool endsThere = !isLetter(at(end)) && at(end) != '.';
    // Without a sign, a letter may also be that of a direction or a column; with blanks on both sides it is a word.
    const bool isLikely = hasSign ? letter == mNumber.end || sign == letter + 1 : letter == mNumber.end && !isWhole();
    return end > digits && isSpaced && endsThere && isLikely ? end : 0;
}

qint64 FNumberSurroundings::exponentEnd() const {
    if (!hasCutExponent() && !hasPointExponent()) {
        return std::max(mNumber.end, spacedExponentEnd());
    }
    const qint64 letter = mNumber.end + (at(mNumber.end) == '.');
    const qint64 sign = letter + isExponentLetter(at(letter));
    return digitsEnd(sign + isSign(at(sign)));
}

// The minus of a subtraction, a range or a list isn't a sign; before a whole number it is most likely one of these.
bool FNumberSurroundings::hasSpacedSign() const {
    const qint64 blanks = blanksBegin(mNumber.begin);
    const qint64 minus = blanks - 1;
    if (isSign(at(mNumber.begin)) || blanks == mNumber.begin || minus < mLineBegin || at(minus) != '-') {
        return false;
    }
    qint64 before = minus;
    while (before > 0 && minus - before < longest && (at(before - 1) == ' ' || at(before - 1) == '\t')) {
        --before;
    }
    const char c = before > 0 ? at(before - 1) : '\n';
    constexpr std::string_view opening = "=:([,;|";
    return opening.find(c) != std::string_view::npos || ((c == '\n' || isLetter(c)) && !isWhole());
}

/** Whether the minus sign of typography is directly before the number, and no operator. */
bool FNumberSurroundings::hasForeignMinus() const {
    constexpr std::string_view minus = "\u2212";
    const qint64 begin = mNumber.begin - static_cast<qint64>(minus.size());
    return begin >= mLineBegin && FByteRange{begin, mNumber.begin}.of(mText) == minus && !isDigit(at(begin - 1));
}

bool FNumberSurroundings::hasLetterBefore() const {
    return mNumber.begin != mLineBegin && isLetter(at(mNumber.begin - 1));
}

bool FNumberSurroundings::hasLetterAfter() const {
    const char next = at(mNumber.end);
    if (FUtf8::isAscii(next)) {
        return isLetter(next);
    }
    qint64 offset = mNumber.end;
    const char32_t c = FUtf8::next(mText, offset);
    return c != FUtf8::noCharacter && QChar::isLetter(c);
}

bool FNumberSurroundings::isCutAtEdge() const {
    const char before = at(mNumber.begin - 1);
    const char after = at(mNumber.end);
    return isDigit(before) || (before == '.' && isDigit(at(mNumber.begin - 2))) ||
           ((isSign(after) || after == '.') && isDigit(at(mNumber.end + 1)));
}

// With another comma or a point next to them, the commas separate numbers; in brackets, too.
bool FNumberSurroundings::hasCommaAfter() const {
    const char before = at(mNumber.begin - 1);
    if (!isWhole() || before == ',' || isOpening(before) || at(mNumber.end) != ',' || !isDigit(at(mNumber.end + 1))) {
        return false;
    }
    const char after = at(digitsEnd(mNumber.end + 1));
    return after != ',' && after != '.';
}

bool FNumberSurroundings::hasCommaBefore() const {
    const char after = at(mNumber.end);
    if (!isWhole() || after == ',' || isClosing(after) || at(mNumber.begin - 1) != ',' || isSign(at(mNumber.begin))) {
        return false;
    }
    qint64 begin = mNumber.begin - 1;
    while (mNumber.begin - begin < longest && isDigit(at(begin - 1))) {
        --begin;
    }
    return isDigit(at(begin)) && at(begin - 1) != ',' && at(begin - 1) != '.';
}

/** Whether three digits begin at an offset, and no more. */
bool FNumberSurroundings::isGroup(qint64 begin) const {
    constexpr qint64 size = 3;
    return digitsEnd(begin) == begin + size;
}

/** Whether a number like 1,234.5 or 1'234 or 1.234,5 begins with this one, and blanks surround it. */
bool FNumberSurroundings::hasThousands() const {
    constexpr qint64 mostFirst = 3;
    const char separator = at(mNumber.end);
    const qint64 begin = mNumber.begin + isSign(at(mNumber.begin));
    const qint64 first = digitsEnd(begin);
    const bool startsWord =
        mNumber.begin == mLineBegin || isBlank(at(mNumber.begin - 1)) || at(mNumber.begin - 1) == '=';
    if (!startsWord || at(begin) == '0' || first == begin || first - begin > mostFirst) {
        return false;
    }
    if (!isWhole()) {
        const qint64 end = digitsEnd(mNumber.end + 1);
        return at(first) == '.' && first + 4 == mNumber.end && separator == ',' && end > mNumber.end + 1 &&
               isBlank(at(end));
    }
    qint64 end = mNumber.end;
    while ((separator == ',' || separator == '\'') && at(end) == separator && isGroup(end + 1)) {
        end += 4;
    }
    const bool hasFraction = at(end) == '.';
    const bool isSure = separator == '\'' || hasFraction || end > mNumber.end + 4;
    return end > mNumber.end && isSure && isBlank(at(hasFraction ? digitsEnd(end + 1) : end));
}

namespace {

/** Commas of a line that separates its fields by them and has one that isn't between digits; 0 for other lines. */
std::ptrdiff_t separatingCommas(std::string_view line) {
    bool isSure = false;
    for (std::size_t i = line.find(','); i != std::string_view::npos; i = line.find(',', i + 1)) {
        const char before = i > 0 ? line[i - 1] : ' ';
        const char after = i + 1 < line.size() ? line[i + 1] : ' ';
        if (isBlank(before) || isBlank(after)) {
            return 0;
        }
        isSure = isSure || !isDigit(before) || !isDigit(after);
    }
    return isSure ? std::count(line.begin(), line.end(), ',') : 0;
}

}  // namespace

// In a file of two columns of whole numbers, only its head tells that 1,2 are two numbers.
bool FNumberSurroundings::isUnderCommas() const {
    constexpr std::string_view ofNumbers = "0123456789.,+-\r";
    constexpr std::size_t mostInLine = 512;
    const auto number = static_cast<std::size_t>(mNumber.begin);
    const std::size_t feed = mText.substr(0, number).rfind('\n');
    const std::string_view rest = mText.substr(feed == std::string_view::npos ? 0 : feed + 1, mostInLine);
    const std::string_view line = rest.substr(0, rest.find('\n'));
    const std::string_view start = mText.substr(0, mostInLine);
    const std::string_view head = start.substr(0, start.find('\n'));
    return line.find_first_not_of(ofNumbers) == std::string_view::npos &&
           separatingCommas(head) == std::count(line.begin(), line.end(), ',');
}

// ---- texts for messages ----

QString FNumberSurroundings::decoded(qint64 begin, qint64 end) const {
    return FUtf8::decode(FByteRange{begin, end}.of(mText)).trimmed();
}

QString FNumberSurroundings::before() const {
    qint64 begin = mNumber.begin;
    while (begin > 0 && mNumber.begin - begin < longest && !isBlank(at(begin - 1))) {
        --begin;
    }
    return decoded(begin, mNumber.begin);
}

QString FNumberSurroundings::after() const {
    const qint64 limit = std::min(mNumber.end + longest, static_cast<qint64>(mText.size()));
    qint64 end = mNumber.end;
    while (end < limit && !isBlank(at(end))) {
        ++end;
    }
    return decoded(mNumber.end, end);
}

QString FNumberSurroundings::whole() const {
    return before() + decoded(mNumber.begin, mNumber.end) + after();
}

QString FNumberSurroundings::spacedExponent() const {
    return decoded(mNumber.end, spacedExponentEnd());
}

QString FNumberSurroundings::withSpacedExponent() const {
    return decoded(mNumber.begin, spacedExponentEnd());
}
