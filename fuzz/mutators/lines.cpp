// Changes texts by the line, beside what is changed by the byte: statements that are taken out, doubled and moved get
// deeper than damaged ones. For targets of texts that are made of lines.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace {

std::vector<std::string> linesOf(const std::uint8_t* data, std::size_t size) {
    std::vector<std::string> lines;
    const std::uint8_t* const end = data + size;
    while (data < end) {
        const std::uint8_t* next = std::find(data, end, '\n');
        next += next < end ? 1 : 0;
        lines.emplace_back(data, next);
        data = next;
    }
    return lines;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most,
                                               unsigned int seed) {
    std::vector<std::string> lines = linesOf(data, size);
    if (lines.empty() || seed % 2 == 0) {
        return LLVMFuzzerMutate(data, size, most);
    }
    std::minstd_rand random(seed);
    std::string& line = lines[random() % lines.size()];
    std::string& other = lines[random() % lines.size()];
    switch (random() % 3) {
        case 0:
            line.clear();
            break;
        case 1:
            line += std::string(other);
            break;
        default:
            std::swap(line, other);
    }
    std::string text;
    for (const std::string& each : lines) {
        text += each;
    }
    const std::size_t written = std::min(text.size(), most);
    std::copy_n(text.begin(), written, data);
    return written;
}
