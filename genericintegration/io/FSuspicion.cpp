#include "genericintegration/io/FSuspicion.h"

#include "genericintegration/io/FAsciiText.h"
#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FNumberSurroundings.h"
#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"

#include <algorithm>
#include <array>
#include <cstring>

using namespace FAsciiText;

namespace FSuspicion {
namespace {

constexpr int longest = 64;

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

bool isNanOrInf(std::string_view word) {
    constexpr std::string_view words[] = {"nan", "inf", "infinity", "qnan", "snan"};
    const auto same = [](char left, char right) { return lower(left) == right; };
    return std::any_of(std::begin(words), std::end(words), [&](std::string_view candidate) {
        return std::equal(word.begin(), word.end(), candidate.begin(), candidate.end(), same);
    });
}

/** A word or a sequence of asterisks in a text, with the line around it. */
class FRunInLine {
 public:
    FRunInLine(std::string_view text, FByteRange run) : mText(text), mRun(run) {
        mBegin = run.begin;
        while (mBegin > std::max<qint64>(run.begin - most, 0) && at(mBegin - 1) != '\n') {
            --mBegin;
        }
        mEnd = run.end;
        while (mEnd < std::min(run.end + most, static_cast<qint64>(text.size())) && at(mEnd) != '\n') {
            ++mEnd;
        }
    }

    /** Asterisks in place of a number; not those of a title, a comment or a line between parts. */
    bool isNumber() const {
        constexpr qint64 widestNumber = 24;
        const char before = lastOf({mBegin, mRun.begin});
        const char after = firstOf({mRun.end, mEnd});
        const bool startsWithStar = firstOf({mBegin, mEnd}) == '*';
        if (before == '\n' && after == '\n') {
            return mRun.size() > 2 && mRun.size() <= widestNumber;
        }
        if (before == '\n') {
            return (isDigit(after) || isSign(after) || after == '.') && lastOf({mBegin, mEnd}) != '*';
        }
        return isDigit(before) || !startsWithStar;
    }

    /** A word that isn't the level of a message, such as "[INF]" or "INF:". */
    bool isValue() const { return at(mRun.begin - 1) != '[' && at(mRun.end) != ']' && at(mRun.end) != ':'; }

 private:
    static constexpr qint64 most = 512;

    char at(qint64 offset) const {
        return offset >= 0 && offset < static_cast<qint64>(mText.size()) ? mText[static_cast<size_t>(offset)] : '\n';
    }
    // A line feed if there is none but blanks.
    char firstOf(FByteRange part) const {
        while (part.begin < part.end && isBlank(at(part.begin))) {
            ++part.begin;
        }
        return part.begin < part.end ? at(part.begin) : '\n';
    }
    char lastOf(FByteRange part) const {
        while (part.begin < part.end && isBlank(at(part.end - 1))) {
            --part.end;
        }
        return part.begin < part.end ? at(part.end - 1) : '\n';
    }

    std::string_view mText;
    FByteRange mRun;
    qint64 mBegin = 0;
    qint64 mEnd = 0;
};

FFoundFlags ofRun(std::string_view text, FByteRange run, Kind kind) {
    if (kind == Kind::Star) {
        return run.size() > 1 && FRunInLine(text, run).isNumber() ? FFoundFlag::Stars : FFoundFlags();
    }
    return isNanOrInf(run.of(text)) && FRunInLine(text, run).isValue() ? FFoundFlag::NanOrInf : FFoundFlags();
}

}  // namespace

FFoundFlags ofNumber(std::string_view text, FByteRange number, qint64 lineBegin) {
    const FNumberSurroundings around(text, number, lineBegin);
    return around.arePlain() ? FFoundFlags() : around.flags();
}

bool mayShift(std::string_view text, qint64 numberEnd) {
    return !FNumberSurroundings::isPlainAfter(text, numberEnd);
}

FFoundFlags ofGap(std::string_view text, FByteRange gap, FByteRange& oddity) {
    FFoundFlags flags;
    for (qint64 end = gap.begin; end < gap.end;) {
        const qint64 begin = end++;
        const Kind kind = kindOf(text[static_cast<size_t>(begin)]);
        if (kind <= Kind::Digit) {
            continue;
        }
        while (end < gap.end && isSameRun(kind, kindOf(text[static_cast<size_t>(end)]))) {
            ++end;
        }
        const FFoundFlags found = ofRun(text, {begin, end}, kind);
        if (found && oddity.size() == 0) {
            oddity = {begin, end};
        }
        flags |= found;
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
    const QByteArray bytes = text.left(longest).toUtf8();
    const std::string_view view(bytes.constData(), static_cast<size_t>(bytes.size()));
    const FByteRange number = FNumberPattern::next(view, 0);
    FByteRange oddity{};
    const FFoundFlags flags = ofGap(view, {0, number.begin < 0 ? bytes.size() : number.begin}, oddity);
    return number.begin < 0 ? flags : flags | ofNumber(view, number, 0);
}

FFoundFlags around(const QString& line, int begin, int end) {
    const int from = std::max(begin - longest, 0);
    const QByteArray before = line.mid(from, begin - from).toUtf8();
    const QByteArray number = line.mid(begin, end - begin).toUtf8();
    const QByteArray text = before + number + line.mid(end, longest).toUtf8();
    const std::string_view view(text.constData(), static_cast<size_t>(text.size()));
    const FFoundFlags flags = ofNumber(view, {before.size(), before.size() + number.size()}, 0);
    FFoundFlags found = flags & (FFoundFlag::SpacedExponent | FFoundFlag::SpacedSign);
    // A separator that can be part of a number may have cut one.
    const auto cuts = [&line](int place) {
        const QChar c = place >= 0 && place < line.size() ? line.at(place) : QChar(' ');
        return c.isDigit() || c == QLatin1Char('.');
    };
    found.setFlag(FFoundFlag::CutAtEdge, cuts(begin - 1) || cuts(end));
    return found;
}

QString fusedIn(const QString& part) {
    static const QRegExp fused(QStringLiteral("\\d*\\.\\d+([Ee][-+]?\\d+)?([-+]\\d*\\.\\d|\\*\\*+)|\\d\\*\\*+"));
    const bool may =
        part.contains(QLatin1String("**")) || part.contains(QLatin1Char('-')) || part.contains(QLatin1Char('+'));
    QRegExp search(fused);
    if (!may || part.size() > 1000 || search.indexIn(part) < 0) {
        return {};
    }
    return part.mid(search.pos(0)).section(QLatin1Char(' '), 0, 0);
}

QString beside(std::string_view text, FByteRange number, FFoundFlags flags) {
    const FNumberSurroundings around(text, number, 0);
    if (flags & (FFoundFlag::DecimalComma | FFoundFlag::ThousandsSeparator | FFoundFlag::CutAtEdge)) {
        return around.whole();
    }
    if (flags.testFlag(FFoundFlag::SpacedExponent)) {
        return around.spacedExponent();
    }
    const FFoundFlags after = FFoundFlag::CutExponent | FFoundFlag::PointExponent | FFoundFlag::LetterAfter |
                              FFoundFlag::Stars | FFoundFlag::NanOrInf;
    return flags & after ? around.after() : around.before();
}

QString word(std::string_view text, FByteRange number, FFoundFlags flags) {
    const FNumberSurroundings around(text, number, 0);
    return flags.testFlag(FFoundFlag::SpacedExponent) ? around.withSpacedExponent() : around.whole();
}

qint64 exponentEnd(std::string_view line, FByteRange number) {
    return FNumberSurroundings(line, number, 0).exponentEnd();
}

FFoundFlags ofLine(std::string_view line) {
    constexpr size_t headSize = 4096;
    const bool hasZero = line.substr(0, headSize).find('\0') != std::string_view::npos;
    return hasZero ? FFoundFlag::ZeroBytes : FFoundFlags();
}

FFoundFlags ofFile(const FResultText& text) {
    FFoundFlags flags = ofLine(text.text());
    const size_t size = static_cast<size_t>(text.trimmedSize());
    const bool isOneLine = size > 0 && text.index().lineFeed(0) < 0;
    flags.setFlag(FFoundFlag::OnlyCarriageReturns, isOneLine && std::memchr(text.text().data(), '\r', size) != nullptr);
    return flags;
}

}  // namespace FSuspicion
