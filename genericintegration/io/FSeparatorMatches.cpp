#include "genericintegration/io/FSeparatorMatches.h"

#include "host/run/FUtf8.h"

#include <re2/re2.h>

#include <ctime>

namespace {

/** Processor time for all searches in one text that aren't linear. */
constexpr double mostSeconds = 10;
double slowSeconds = 0;

bool isAsciiText(const QString& text) {
    ushort bits = 0;
    for (const QChar c : text) {
        bits = static_cast<ushort>(bits | c.unicode());
    }
    return bits < 0x80;
}

QByteArray encoded(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    char character[FUtf8::longestCharacter];
    for (const QChar c : text) {
        bytes.append(character, static_cast<int>(FUtf8::putCharacter(character, c.unicode()) - character));
    }
    return bytes;
}

}  // namespace

FSeparatorMatches::FSeparatorMatches(const FSeparator& separator, const QString& line)
    : mLine(line), mIsAscii(isAsciiText(line)), mIsInvalid(!separator.error().isEmpty()) {
    mLinear = separator.linear(mIsAscii);
    if (mLinear) {
        mBytes = mIsAscii ? line.toLatin1() : encoded(line);
    } else {
        mSlow = separator.slow();
        mIsGivenUp = !mIsInvalid && !mSlow.isEmpty() && line.size() > FSeparator::longestSlowLine;
    }
}

void FSeparatorMatches::startText() {
    slowSeconds = 0;
}

int FSeparatorMatches::find(int start) {
    return mLinear ? findLinear(start) : findSlow(start);
}

int FSeparatorMatches::findLinear(int start) {
    const re2::StringPiece text(mBytes.constData(), static_cast<size_t>(mBytes.size()));
    re2::StringPiece match;
    mLength = -1;
    if (start > mLine.size() || !mLinear->Match(text, byteAt(start), text.size(), re2::RE2::UNANCHORED, &match, 1)) {
        return -1;
    }
    const int begin = unitAt(static_cast<size_t>(match.data() - text.data()));
    mLength = unitAt(static_cast<size_t>(match.data() + match.size() - text.data())) - begin;
    return begin;
}

int FSeparatorMatches::findSlow(int start) {
    mIsGivenUp = mIsGivenUp || slowSeconds > mostSeconds;
    if (mIsGivenUp || mIsInvalid) {
        mLength = -1;
        return -1;
    }
    if (mSlow.isEmpty()) {
        mLength = start <= mLine.size() ? 0 : -1;
        return start <= mLine.size() ? start : -1;
    }
    const std::clock_t begin = std::clock();
    const int match = mSlow.indexIn(mLine, start);
    slowSeconds += static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    mLength = mSlow.matchedLength();
    return match;
}

size_t FSeparatorMatches::byteAt(int unit) {
    if (mIsAscii) {
        return static_cast<size_t>(unit);
    }
    if (unit < mUnit) {
        mUnit = 0;
        mByte = 0;
    }
    for (; mUnit < unit; ++mUnit) {
        do {
            ++mByte;
        } while (mByte < static_cast<size_t>(mBytes.size()) &&
                 FUtf8::isContinuation(mBytes.at(static_cast<int>(mByte))));
    }
    return mByte;
}

int FSeparatorMatches::unitAt(size_t byte) {
    if (mIsAscii) {
        return static_cast<int>(byte);
    }
    if (byte < mByte) {
        mUnit = 0;
        mByte = 0;
    }
    for (; mByte < byte; ++mByte) {
        mUnit += FUtf8::isContinuation(mBytes.at(static_cast<int>(mByte))) ? 0 : 1;
    }
    return mUnit;
}
