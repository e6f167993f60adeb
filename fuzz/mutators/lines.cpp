// Changes texts by the line, beside what is changed by the byte: statements that are taken out, doubled and moved
// get deeper than damaged ones. For targets of texts that are made of lines.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::uint8_t* data, std::size_t size) {
    Lines lines;
    const std::uint8_t* const end = data + size;
    while (data < end) {
        const std::uint8_t* next = std::min(std::find(data, end, '\n') + 1, end);
        lines.emplace_back(data, next);
        data = next;
    }
    return lines;
}

/// As many whole lines as there is room for.
std::size_t write(const Lines& lines, std::uint8_t* data, std::size_t most) {
    std::size_t size = 0;
    for (const std::string& line : lines) {
        if (size + line.size() > most) {
            break;
        }
        std::memcpy(data + size, line.data(), line.size());
        size += line.size();
    }
    return size;
}

class LineMutator {
 public:
    LineMutator(Lines lines, unsigned int seed) : mLines(std::move(lines)), mRandom(seed) {}

    Lines mutate() {
        const std::size_t line = below(mLines.size());
        switch (below(5)) {
            case 0:
                mLines.erase(place(line));
                break;
            case 1:
                mLines.insert(place(below(mLines.size() + 1)), std::string(mLines[line]));
                break;
            case 2:
                std::swap(mLines[line], mLines[below(mLines.size())]);
                break;
            default:
                mutateTail(mLines[line]);
        }
        return std::move(mLines);
    }

 private:
    std::size_t below(std::size_t count) { return mRandom() % count; }
    Lines::iterator place(std::size_t line) { return mLines.begin() + static_cast<std::ptrdiff_t>(line); }

    /// The begin of a line often is what gives it a meaning.
    void mutateTail(std::string& line) {
        constexpr std::size_t longest = 200;
        const std::size_t kept = below(line.size());
        std::vector<std::uint8_t> tail(line.begin() + static_cast<std::ptrdiff_t>(kept), line.end());
        const std::size_t size = tail.size();
        tail.resize(std::max(size, longest));
        tail.resize(LLVMFuzzerMutate(tail.data(), size, tail.size()));
        line.replace(kept, std::string::npos, std::string(tail.begin(), tail.end()));
    }

    Lines mLines;
    std::minstd_rand mRandom;
};

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned int seed) {
    Lines lines = linesOf(data, size);
    if (lines.empty() || seed % 3 == 0) {
        return LLVMFuzzerMutate(data, size, most);
    }
    return write(LineMutator(std::move(lines), seed).mutate(), data, most);
}
