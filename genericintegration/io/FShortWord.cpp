#include "genericintegration/io/FShortWord.h"

#include "genericintegration/io/FAnchorFilter.h"

#include <algorithm>

bool FShortWord::canBe(std::u32string_view word) {
    return word.size() <= longest && FAnchorFilter::asciiRun(word) == static_cast<qint64>(word.size());
}

FShortWord::FShortWord(std::u32string_view word, size_t number)
    : mSize(static_cast<qint64>(word.size())),
      mQuad(static_cast<qint64>(FAnchorFilter::rarestPart(word, std::min(word.size(), quadSize)))),
      mNumber(number) {
    for (size_t i = 0; i < word.size(); ++i) {
        mBytes |= quint64(word[i]) << (8 * i);
        mMask |= quint64(0xFF) << (8 * i);
        if (word[i] >= U'a' && word[i] <= U'z') {
            mCaseBits |= quint64(0x20) << (8 * i);
        }
    }
}

void FShortWord::avoidOthers() {
    constexpr double heavier = 16;
    mWeight *= heavier;
    const qint64 quads = std::max<qint64>(mSize - static_cast<qint64>(quadSize) + 1, 1);
    mQuad = (mQuad + 1) % quads;
}
