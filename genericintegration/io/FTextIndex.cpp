#include "genericintegration/io/FTextIndex.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "genericintegration/io/FUtf8.h"

namespace {

constexpr qint64 BlockSize = 4096;

// Of at most a block. Lanes of a byte can't overflow then, and let the compiler compare many bytes at once.
qint64 countLineFeeds(std::string_view text) {
    constexpr size_t Lanes = 32;
    static_assert(BlockSize / Lanes <= 255);
    std::array<unsigned char, Lanes> lanes{};
    size_t offset = 0;
    for (; offset + Lanes <= text.size(); offset += Lanes) {
        for (size_t lane = 0; lane < Lanes; ++lane)
            lanes[lane] = static_cast<unsigned char>(lanes[lane] + (text[offset + lane] == '\n'));
    }
    const qint64 rest = std::count(text.begin() + static_cast<std::ptrdiff_t>(offset), text.end(), '\n');
    return std::accumulate(lanes.begin(), lanes.end(), rest);
}

}  // namespace

FTextIndex::FTextIndex(std::string_view text) : mText(text) {
    const qint64 size = static_cast<qint64>(text.size());
    const size_t blocks = static_cast<size_t>(size / BlockSize) + 1;
    mLines.reserve(blocks);
    mUnits.reserve(blocks);
    qint64 lines = 0;
    qint64 units = 0;
    for (qint64 begin = 0; begin <= size; begin += BlockSize) {
        const std::string_view part = block(begin, std::min(begin + BlockSize, size));
        mLines.push_back(lines);
        mUnits.push_back(units);
        lines += countLineFeeds(part);
        const bool ascii = FUtf8::isAscii(part);
        units += ascii ? static_cast<qint64>(part.size()) : FUtf8::utf16Length(part);
        mAscii = mAscii && ascii;
    }
}

std::string_view FTextIndex::block(qint64 begin, qint64 end) const {
    return mText.substr(static_cast<size_t>(begin), static_cast<size_t>(end - begin));
}

qint64 FTextIndex::lineAt(qint64 offset) const {
    const qint64 number = offset / BlockSize;
    return mLines[static_cast<size_t>(number)] + countLineFeeds(block(number * BlockSize, offset));
}

qint64 FTextIndex::lineStart(qint64 line) const {
    if (line == 0)
        return 0;
    const auto above = std::lower_bound(mLines.begin(), mLines.end(), line);
    const qint64 number = above - mLines.begin() - 1;
    size_t offset = static_cast<size_t>(number * BlockSize);
    for (qint64 missing = line - mLines[static_cast<size_t>(number)]; missing > 0; --missing, ++offset) {
        offset = mText.find('\n', offset);
        if (offset == std::string_view::npos)
            return -1;
    }
    return static_cast<qint64>(offset);
}

qint64 FTextIndex::lineBegin(qint64 offset) const {
    return std::clamp<qint64>(lineStart(lineAt(offset)), 0, offset);
}

qint64 FTextIndex::utf16At(qint64 offset) const {
    if (isAscii())
        return offset;
    const qint64 number = offset / BlockSize;
    return mUnits[static_cast<size_t>(number)] + FUtf8::utf16Length(block(number * BlockSize, offset));
}
