#include "genericintegration/io/FShortWordSearch.h"

#include "genericintegration/io/FShortWordPass.h"

bool FShortWordSearch::add(std::u32string_view word) {
    if (mWords.size() == mostWords || !FShortWord::canBe(word)) {
        return false;
    }
    mWords.emplace_back(word, mWords.size());
    return true;
}

std::vector<FByteRange> FShortWordSearch::find(std::string_view text) const {
    constexpr int often = 16;
    constexpr qint64 step = FByteQuads::blockSize;
    std::vector<FByteRange> ends(mWords.size(), {-1, -1});
    const qint64 last = static_cast<qint64>(text.size()) - FByteQuads::readSize;
    if (mWords.empty() || last < 0) {
        return ends;
    }
    const std::vector<FShortWord> common = FShortWordPass(text, mWords, often, ends).run(0, step);
    FShortWordPass(text, common, 1, ends).run(last / step * step, -step);
    return ends;
}
