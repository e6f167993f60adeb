#include "host/run/FTextIndex.h"

#include "host/run/FUtf8.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

constexpr qint64 blockSize = 2048;

struct Count {
    qint64 lineFeeds;
    bool isAscii;
};

constexpr size_t lanes = 32;
using Bytes = std::array<unsigned char, lanes>;
using Words = std::array<quint64, lanes / 8>;

// The sum of all bytes must fit into 16 bits.
qint64 sumOf(const Bytes& bytes) {
    constexpr quint64 even = 0x00FF00FF00FF00FF;
    quint64 sums = 0;
    for (const quint64 word : std::bit_cast<Words>(bytes)) {
        sums += (word & even) + (word >> 8 & even);
    }
    return static_cast<qint64>(sums * 0x0001000100010001 >> 48);
}

bool isAscii(const Bytes& bits) {
    quint64 all = 0;
    for (const quint64 word : std::bit_cast<Words>(bits)) {
        all |= word;
    }
    return (all & 0x8080808080808080) == 0;
}

// For at most one block, so that the lanes of one byte can't overflow. They let the compiler vectorise the loop.
Count countIn(std::string_view text) {
    static_assert(blockSize / lanes + 1 < 0x100);
    Bytes lineFeeds{};
    Bytes bits{};
    const auto take = [&](size_t lane, char byte) {
        lineFeeds[lane] = static_cast<unsigned char>(lineFeeds[lane] + (byte == '\n'));
        bits[lane] |= static_cast<unsigned char>(byte);
    };
    size_t offset = 0;
    for (; offset + lanes <= text.size(); offset += lanes) {
        for (size_t lane = 0; lane < lanes; ++lane) {
            take(lane, text[offset + lane]);
        }
    }
    for (size_t lane = 0; offset + lane < text.size(); ++lane) {
        take(lane, text[offset + lane]);
    }
    return {sumOf(lineFeeds), isAscii(bits)};
}

}  // namespace

FTextIndex::FTextIndex(std::string_view text) {
    extend(text, static_cast<qint64>(text.size()));
}

// The last block is counted again each time, since it may have been incomplete.
bool FTextIndex::extend(std::string_view text, qint64 bytes) {
    const qint64 size = static_cast<qint64>(text.size());
    const qint64 end = size - this->size() <= bytes ? size : (this->size() + bytes) / blockSize * blockSize;
    mText = text.substr(0, static_cast<size_t>(end));
    // Room for the whole text at once, and some for growth, instead of twice as much as is needed.
    if (const size_t blocks = text.size() / static_cast<size_t>(blockSize) + 1; blocks > mLines.capacity()) {
        constexpr size_t part = 8;
        const size_t room = mLines.capacity() == 1 ? blocks : blocks + blocks / part;
        mLines.reserve(room);
        mUnits.reserve(room);
    }
    for (qint64 begin = static_cast<qint64>(mLines.size() - 1) * blockSize; begin < end; begin += blockSize) {
        const std::string_view part = block(begin, std::min(begin + blockSize, end));
        const Count count = countIn(part);
        mAscii = mAscii && count.isAscii;
        if (static_cast<qint64>(part.size()) == blockSize) {
            mLines.push_back(mLines.back() + count.lineFeeds);
            mUnits.push_back(mUnits.back() +
                             (count.isAscii ? static_cast<qint64>(part.size()) : FUtf8::utf16Length(part)));
        }
    }
    return end == size;
}

std::string_view FTextIndex::block(qint64 begin, qint64 end) const {
    return mText.substr(static_cast<size_t>(begin), static_cast<size_t>(end - begin));
}

// Counts from the nearer end of the block.
qint64 FTextIndex::lineAt(qint64 offset) const {
    const qint64 begin = offset / blockSize * blockSize;
    const qint64 end = begin + blockSize;
    const size_t number = static_cast<size_t>(offset / blockSize);
    if (end - offset < offset - begin && number + 1 < mLines.size()) {
        return mLines[number + 1] - countIn(block(offset, end)).lineFeeds;
    }
    return mLines[number] + countIn(block(begin, offset)).lineFeeds;
}

qint64 FTextIndex::lineStart(qint64 line) const {
    if (line == 0) {
        return 0;
    }
    const auto above = std::lower_bound(mLines.begin(), mLines.end(), line);
    const qint64 number = above - mLines.begin() - 1;
    size_t offset = static_cast<size_t>(number * blockSize);
    for (qint64 missing = line - mLines[static_cast<size_t>(number)]; missing > 0; --missing, ++offset) {
        offset = mText.find('\n', offset);
        if (offset == std::string_view::npos) {
            return -1;
        }
    }
    return static_cast<qint64>(offset);
}

// Most lines start and end in the same block. For one that doesn't, the cost mustn't depend on its length.
qint64 FTextIndex::lineBegin(qint64 offset) const {
    const qint64 begin = offset / blockSize * blockSize;
    const void* const before = ::memrchr(mText.data() + begin, '\n', static_cast<size_t>(offset - begin));
    if (before != nullptr) {
        return static_cast<const char*>(before) - mText.data() + 1;
    }
    return std::clamp<qint64>(lineStart(lineAt(offset)), 0, offset);
}

qint64 FTextIndex::lineFeed(qint64 offset) const {
    const qint64 end = std::min((offset / blockSize + 1) * blockSize, static_cast<qint64>(mText.size()));
    const size_t at = block(offset, end).find('\n');
    if (at != std::string_view::npos) {
        return offset + static_cast<qint64>(at);
    }
    const qint64 next = lineStart(lineAt(end) + 1);
    return next < 0 ? -1 : std::max(next - 1, end);
}

qint64 FTextIndex::utf16InText(qint64 offset) const {
    const qint64 number = offset / blockSize;
    return mUnits[static_cast<size_t>(number)] + FUtf8::utf16Length(block(number * blockSize, offset));
}

qint64 FTextIndex::offsetOfUtf16(qint64 unit) const {
    if (mAscii) {
        return std::min(unit, size());
    }
    const auto above = std::upper_bound(mUnits.begin(), mUnits.end(), unit);
    const qint64 number = above - mUnits.begin() - 1;
    qint64 offset = number * blockSize;
    while (offset < size() && FUtf8::isContinuation(mText[static_cast<size_t>(offset)])) {
        ++offset;
    }
    for (qint64 at = mUnits[static_cast<size_t>(number)]; offset < size();) {
        qint64 after = offset;
        at += QChar::requiresSurrogates(FUtf8::next(mText, after)) ? 2 : 1;
        if (at > unit) {
            break;
        }
        offset = after;
    }
    return offset;
}
