#include "genericintegration/io/FColumnCursor.h"

#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSuspicion.h"
#include "host/run/FUtf8.h"

#include <algorithm>
#include <cmath>

FColumnCursor::FColumnCursor(std::string_view text, FByteRange line, const FSeparator* separator, bool mayBeSuspicious)
    : mText(text),
      mLine{FUtf8::skipSpace(text.substr(0, static_cast<size_t>(line.end)), line.begin), line.end},
      mNumber{mLine.begin, mLine.begin},
      mMayBeSuspicious(mayBeSuspicious) {
    if (separator != nullptr) {
        mDecoded = FUtf8::decode(mLine.of(text));
        mWalk.emplace(*separator, mDecoded);
        mIsSplitAtBlanks = separator->splitsAtBlanks();
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
    FColumn found = mPassed <= column ? FColumn::missing(mLine.begin) : FColumn::found(mText, mNumber);
    found.flags = mFlags;
    found.oddity = mOddity;
    if (found.exists) {
        found.flags.setFlag(FFoundFlag::Shifted, mFlags != 0);
        if (const FFoundFlags own = FSuspicion::ofNumber(mText, mNumber, mLine.begin)) {
            // The words for a shift need what shifted, and come before those for these flags.
            constexpr FFoundFlags lesser =
                FFoundFlag::Stars | FFoundFlag::NanOrInf | FFoundFlag::LetterBefore | FFoundFlag::LetterAfter;
            const bool tellsShift = mFlags != 0 && (own & ~lesser) == 0;
            found.flags |= own;
            found.oddity = tellsShift ? mOddity : FSuspicion::beside(mText, mNumber, own);
        }
    }
    return found;
}

void FColumnCursor::passNumber() {
    if (mPassed > 0 && FSuspicion::mayShift(mText, mNumber.end)) {
        const FFoundFlags flags = FSuspicion::ofNumber(mText, mNumber, mLine.begin) & FSuspicion::shiftingFlags;
        if (flags) {
            noteShift(FFoundFlag::Shifted, FSuspicion::word(mText, mNumber, flags));
        }
    }
    const std::string_view rest = FByteRange{mNumber.end, mLine.end}.of(mText);
    const FByteRange next = FNumberPattern::next(rest, 0);
    mEnded = next.begin < 0;
    if (mMayBeSuspicious) {
        FByteRange oddity{};
        const qint64 gapEnd = mEnded ? mLine.end : mNumber.end + next.begin;
        if (const FFoundFlags flags = FSuspicion::ofGap(mText, {mNumber.end, gapEnd}, oddity)) {
            noteShift(flags, FUtf8::decode(oddity.of(mText)));
        }
    }
    if (!mEnded) {
        mNumber = {mNumber.end + next.begin, mNumber.end + next.end};
        ++mPassed;
    }
}

void FColumnCursor::noteShift(FFoundFlags flags, const QString& oddity) {
    mOddity = mFlags ? mOddity : oddity;
    mFlags |= flags;
}

FColumn FColumnCursor::seekSeparated(int column) {
    const int from = mWalk->start();
    mEnded = mEnded || !mWalk->pass(column - mPassed);
    mPassed = column;
    if (mEnded) {
        FColumn missing = FColumn::missing(mLine.begin);
        missing.flags.setFlag(FFoundFlag::SeparatorTooSlow, mWalk->isGivenUp());
        return missing;
    }
    const int begin = mWalk->start();
    const int next = mWalk->next();
    const int end = next < 0 ? mDecoded.size() : next;
    seekFused(from, begin);
    FColumn found = FColumn::found(mDecoded.mid(begin, end - begin), mLine.begin, begin);
    if (std::isfinite(found.number)) {
        found.flags = FSuspicion::around(mDecoded, begin, end);
        found.oddity = found.flags ? mDecoded.mid(std::max(begin - 8, 0), end - begin + 16).trimmed() : QString();
    }
    if (mFlags && !found.flags) {
        found.oddity = mOddity;
    }
    found.flags |= mFlags;
    found.flags.setFlag(FFoundFlag::SeparatorTooSlow, mWalk->isGivenUp());
    return found;
}

// Columns of fixed width without a blank between them count as one.
void FColumnCursor::seekFused(int begin, int end) {
    const QString fused =
        mIsSplitAtBlanks && end > begin ? FSuspicion::fusedIn(mDecoded.mid(begin, end - begin)) : QString();
    if (!fused.isEmpty()) {
        noteShift(FFoundFlag::Shifted, fused);
    }
}
