#include "genericintegration/io/FShortWordPass.h"

#include <algorithm>
#include <bit>
#include <utility>

FShortWordPass::FShortWordPass(std::string_view text, std::vector<FShortWord> words, int often,
                               std::vector<FByteRange>& ends)
    : mText(text), mOften(often), mEnds(ends), mCounts(ends.size()) {
    makeGroups(std::move(words));
}

void FShortWordPass::makeGroups(std::vector<FShortWord> words) {
    mGroups = FShortWordGroup::make(std::move(words), FByteQuads::setCount);
    mQuads = {};
    for (size_t number = 0; number < mGroups.size(); ++number) {
        mQuads.assign(number, mGroups[number].quads);
    }
}

// After a change of quads, a word that starts before the current place and has its new quad there could be missed;
// therefore a few bytes are searched again.
std::vector<FShortWord> FShortWordPass::run(qint64 offset, qint64 step) {
    mForward = step > 0;
    FByteQuads::Block met;
    while (!mGroups.empty() && (offset = mQuads.next(mText, offset, step, met)) >= 0) {
        checkBlock(met, offset);
        offset += step;
        if (mIsVain) {
            offset -= static_cast<qint64>(FShortWord::longest);
        }
        if (mIsVain || mIsGroupEmpty) {
            regroup();
        }
    }
    return std::move(mCommon);
}

void FShortWordPass::checkBlock(const FByteQuads::Block& met, qint64 offset) {
    for (quint32 places = met.places; places != 0;) {
        const int place = mForward ? std::countr_zero(places) : 31 - std::countl_zero(places);
        places ^= quint32(1) << place;
        for (unsigned groups = met.sets[static_cast<size_t>(place)]; groups != 0; groups &= groups - 1) {
            checkGroup(offset + place, static_cast<size_t>(std::countr_zero(groups)));
        }
    }
}

void FShortWordPass::checkGroup(qint64 place, size_t number) {
    FShortWordGroup& group = mGroups[number];
    bool found = false;
    for (size_t i = group.words.size(); i-- > 0;) {
        const FShortWord word = group.words[i];
        const qint64 begin = place - word.quad();
        if (!isAt(word, begin)) {
            continue;
        }
        found = true;
        note(word, begin + word.size());
        if (++mCounts[word.number()] < mOften) {
            continue;
        }
        mCommon.push_back(word);
        group.remove(i);
        mQuads.assign(number, group.quads);
    }
    mIsGroupEmpty |= group.words.empty();
    mIsVain |= mForward && !found && ++group.vainly >= mMostVainly;
}

// The other groups can use the set of an empty one. Better groups may not exist, so each attempt doubles the limit.
void FShortWordPass::regroup() {
    std::vector<FShortWord> words;
    for (FShortWordGroup& group : mGroups) {
        if (mIsVain && group.vainly >= mMostVainly) {
            std::for_each(group.words.begin(), group.words.end(), [](FShortWord& word) { word.avoidOthers(); });
        }
        words.insert(words.end(), group.words.begin(), group.words.end());
    }
    if (mIsVain) {
        mMostVainly *= 2;
    }
    mIsGroupEmpty = false;
    mIsVain = false;
    makeGroups(std::move(words));
}

bool FShortWordPass::isAt(const FShortWord& word, qint64 begin) const {
    const qint64 last = static_cast<qint64>(mText.size()) - static_cast<qint64>(FShortWord::longest);
    return begin >= 0 && begin <= last && word.isAt(mText.data() + begin);
}

void FShortWordPass::note(const FShortWord& word, qint64 end) {
    FByteRange& ends = mEnds[word.number()];
    ends.begin = ends.begin < 0 ? end : std::min(ends.begin, end);
    ends.end = std::max(ends.end, end);
}
