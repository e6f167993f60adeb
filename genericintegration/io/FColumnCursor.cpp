#include "genericintegration/io/FColumnCursor.h"

#include <algorithm>

#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSuspicion.h"
#include "host/run/FUtf8.h"

FColumnCursor::FColumnCursor(std::string_view text, FByteRange line, const QRegExp* separator, bool mayBeSuspicious)
    : mText(text),
      mLine{FUtf8::skipSpace(text.substr(0, static_cast<size_t>(line.end)), line.begin), line.end},
      mNumber{mLine.begin, mLine.begin},
      mMayBeSuspicious(mayBeSuspicious) {
    if (separator != nullptr) {
        mDecoded = FUtf8::decode(mLine.of(text));
        mWalk.emplace(*separator, mDecoded);
    }
}

FColumn FColumnCursor::seek(int column) {
    column = std::max(column, 0);
    return mWalk ? seekSeparated(column) : seekNumber(column);
}

FColumn FColumnCursor::seekNumber(int column) {
    while (mPassed <= column && !mEnded) {
        passNumber();
    }
    if (mPassed <= column) {
        return FColumn::missing(mLine.begin, mFlags);
    }
    const FFoundFlags flags = mFlags | FSuspicion::ofNumber(mText, mNumber);
    return FColumn::found(mText, mNumber, flags);
}

void FColumnCursor::passNumber() {
    const std::string_view rest = FByteRange{mNumber.end, mLine.end}.of(mText);
    const FByteRange next = FNumberPattern::next(rest, 0);
    mEnded = next.begin < 0;
    if (mMayBeSuspicious) {
        mFlags |= FSuspicion::ofText(mEnded ? rest : FByteRange{0, next.begin}.of(rest));
    }
    if (!mEnded) {
        mNumber = {mNumber.end + next.begin, mNumber.end + next.end};
        ++mPassed;
    }
}

FColumn FColumnCursor::seekSeparated(int column) {
    mEnded = mEnded || !mWalk->pass(column - mPassed);
    mPassed = column;
    if (mEnded) {
        return FColumn::missing(mLine.begin, {});
    }
    const int begin = mWalk->start();
    const int end = mWalk->next();
    return FColumn::found(mDecoded.mid(begin, end < 0 ? -1 : end - begin), mLine.begin, begin);
}
