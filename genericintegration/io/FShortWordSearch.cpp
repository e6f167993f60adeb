#include "genericintegration/io/FShortWordSearch.h"

#include "genericintegration/io/FShortWordPass.h"

bool FShortWordSearch::add(std::u32string_view word) {
    if (mWords.size() == MostWords || !FShortWord::canBe(word)) {
        return false;
    }
    mWords.emplace_back(word, mWords.size());
    return true;
}

std::vector<FByteRange> FShortWordSearch::find(std::string_view text) const {
    constexpr int Often = 16;
    constexpr qint64 step = FByteQuads::BlockSize;
    std::vector<FByteRange> ends(mWords.size(), {-1, -1});
    const qint64 last = static_cast<qint64>(text.size()) - FByteQuads::ReadSize;
    if (mWords.empty() || last < 0) {
        return ends;
    }
    const std::vector<FShortWord> common = FShortWordPass(text, mWords, Often, ends).run(0, step);
    FShortWordPass(text, common, 1, ends).run(last / step * step, -step);
    return ends;
}
