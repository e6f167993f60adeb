#include "genericintegration/io/FSuspicion.h"

#include <algorithm>
#include <array>

#include "genericintegration/io/FNumberPattern.h"

namespace FSuspicion {
namespace {

// Programs print no longer numbers.
constexpr qint64 longest = 64;

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isSign(char c) {
    return c == '+' || c == '-';
}
constexpr char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}
constexpr bool isLetter(char c) {
    return (lower(c) >= 'a' && lower(c) <= 'z') || c == '_';
}

enum class Kind : unsigned char { Other, Digit, Letter, Star };

constexpr std::array<Kind, 256> kindsOfBytes = [] {
    std::array<Kind, 256> kinds{};
    for (size_t byte = 0; byte < 0x80; ++byte) {
        kinds[byte] = isLetter(static_cast<char>(byte))  ? Kind::Letter
                      : isDigit(static_cast<char>(byte)) ? Kind::Digit
                                                         : Kind::Other;
    }
    kinds['*'] = Kind::Star;
    return kinds;
}();

Kind kindOf(char c) {
    return kindsOfBytes[static_cast<unsigned char>(c)];
}

/** Whether a word or a sequence of asterisks continues. */
bool isSameRun(Kind kind, Kind next) {
    return next == kind || (kind == Kind::Letter && next == Kind::Digit);
}

/** The characters around a number. */
class FSurroundings {
 public:
    FSurroundings(std::string_view text, FByteRange number)
        : mText(text), mNumber(number), mDigits(number.of(text).substr(0, longest)) {}

    FFoundFlags flags() const {
        FFoundFlags flags;
        flags.setFlag(FFoundFlag::CutExponent, hasCutExponent());
        flags.setFlag(FFoundFlag::DecimalComma, hasCommaBehind() || hasCommaBefore());
        flags.setFlag(FFoundFlag::TouchesText, !hasCutExponent() && (touchesBefore() || touchesBehind()));
        flags.setFlag(FFoundFlag::Stars, at(mNumber.end) == '*' && at(mNumber.end + 1) == '*');
        return flags;
    }

 private:
    char at(qint64 offset) const {
        return offset >= 0 && offset < static_cast<qint64>(mText.size()) ? mText[static_cast<size_t>(offset)] : ' ';
    }
    bool isWhole() const { return mDigits.find_first_of(".eE") == std::string_view::npos; }
    bool hasExponent() const { return mDigits.find_first_of("eE") != std::string_view::npos; }

    qint64 digitsEnd(qint64 offset) const {
        const qint64 limit = offset + longest;
        while (offset < limit && isDigit(at(offset))) {
            ++offset;
        }
        return offset;
    }

    bool hasCutExponent() const {
        if (hasExponent()) {
            return false;
        }
        const qint64 behind = mNumber.end;
        if (lower(at(behind)) == 'd') {
            return isDigit(at(behind + 1)) || (isSign(at(behind + 1)) && isDigit(at(behind + 2)));
        }
        return !isWhole() && isSign(at(behind)) && isDigit(at(behind + 1)) && at(digitsEnd(behind + 1)) != '.';
    }

    bool touchesBefore() const {
        const char before = at(mNumber.begin - 1);
        return isLetter(before) || isDigit(before) || (before == '.' && isDigit(at(mNumber.begin - 2)));
    }

    bool touchesBehind() const {
        const char behind = at(mNumber.end);
        return (isSign(behind) || behind == '.') && isDigit(at(mNumber.end + 1));
    }

    // With another comma or a point next to them, the commas separate numbers.
    bool hasCommaBehind() const {
        if (!isWhole() || at(mNumber.begin - 1) == ',' || at(mNumber.end) != ',' || !isDigit(at(mNumber.end + 1))) {
            return false;
        }
        const char behind = at(digitsEnd(mNumber.end + 1));
        return behind != ',' && behind != '.';
    }

    bool hasCommaBefore() const {
        if (!isWhole() || at(mNumber.end) == ',' || at(mNumber.begin - 1) != ',') {
            return false;
        }
        qint64 begin = mNumber.begin - 1;
        while (mNumber.begin - begin < longest && isDigit(at(begin - 1))) {
            --begin;
        }
        return isDigit(at(begin)) && at(begin - 1) != ',' && at(begin - 1) != '.';
    }

    std::string_view mText;
    FByteRange mNumber;
    std::string_view mDigits;
};

bool isNanOrInf(std::string_view word) {
    constexpr std::string_view words[] = {"nan", "inf", "infinity"};
    const auto same = [](char left, char right) { return lower(left) == right; };
    return std::any_of(std::begin(words), std::end(words), [&](std::string_view candidate) {
        return std::equal(word.begin(), word.end(), candidate.begin(), candidate.end(), same);
    });
}

}  // namespace

FFoundFlags ofNumber(std::string_view text, FByteRange number) {
    const auto isBlank = [text](qint64 offset) {
        return offset < 0 || offset >= static_cast<qint64>(text.size()) || text[static_cast<size_t>(offset)] == ' ' ||
               text[static_cast<size_t>(offset)] == '\n';
    };
    if (isBlank(number.begin - 1) && isBlank(number.end)) {
        return {};
    }
    return FSurroundings(text, number).flags();
}

FFoundFlags ofText(std::string_view text) {
    FFoundFlags flags;
    for (size_t end = 0; end < text.size();) {
        const size_t begin = end++;
        const Kind kind = kindOf(text[begin]);
        if (kind <= Kind::Digit) {
            continue;
        }
        while (end < text.size() && isSameRun(kind, kindOf(text[end]))) {
            ++end;
        }
        if (kind == Kind::Star) {
            flags.setFlag(FFoundFlag::Stars, flags.testFlag(FFoundFlag::Stars) || end - begin > 1);
        } else if (isNanOrInf(text.substr(begin, end - begin))) {
            flags |= FFoundFlag::NanOrInf;
        }
    }
    return flags;
}

// Without a branch for each byte, the compiler can vectorise the loop.
bool mayBeIn(std::string_view text) {
    constexpr size_t partSize = 4096;
    for (size_t begin = 0; begin + 1 < text.size(); begin += partSize) {
        const std::string_view part = text.substr(begin, partSize + 2);
        unsigned char found = part.substr(part.size() - 2) == "**";
        for (size_t i = 0; i + 2 < part.size(); ++i) {
            const auto is = [&part, i](size_t ahead, char letter) -> unsigned char {
                return (part[i + ahead] | 0x20) == letter;
            };
            const auto isStar = [&part, i](size_t ahead) -> unsigned char { return part[i + ahead] == '*'; };
            const unsigned char stars = isStar(0) & isStar(1);
            const unsigned char nan = is(0, 'n') & is(1, 'a') & is(2, 'n');
            const unsigned char inf = is(0, 'i') & is(1, 'n') & is(2, 'f');
            found |= stars | nan | inf;
        }
        if (found) {
            return true;
        }
    }
    return false;
}

FFoundFlags ofColumn(const QString& text) {
    const QByteArray bytes = text.left(static_cast<int>(longest)).toUtf8();
    const std::string_view view(bytes.constData(), static_cast<size_t>(bytes.size()));
    const FByteRange number = FNumberPattern::next(view, 0);
    return number.begin < 0 ? ofText(view) : ofText(view) | ofNumber(view, number);
}

}  // namespace FSuspicion
