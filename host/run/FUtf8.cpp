#include "host/run/FUtf8.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace FUtf8 {

bool isAscii(std::string_view text) {
    constexpr size_t step = 64;
    size_t offset = 0;
    for (; offset + step <= text.size(); offset += step) {
        std::array<quint64, step / 8> words;
        std::memcpy(words.data(), text.data() + offset, step);
        quint64 bits = 0;
        for (const quint64 word : words) {
            bits |= word;
        }
        if ((bits & 0x8080808080808080U) != 0) {
            return false;
        }
    }
    return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(offset), text.end(),
                       [](char byte) { return isAscii(byte); });
}

qint64 trimmedSize(std::string_view text) {
    qint64 end = static_cast<qint64>(text.size());
    while (end > 0) {
        const qint64 last = previous(text, end);
        qint64 offset = last;
        if (!QChar::isSpace(next(text, offset))) {
            break;
        }
        end = last;
    }
    return end;
}

qint64 utf16Length(std::string_view text) {
    const auto units = [](char byte) { return (isContinuation(byte) ? 0 : 1) + (static_cast<uchar>(byte) >= 0xF0); };
    qint64 length = 0;
    // Few enough that the sum fits into a byte, which lets the compiler vectorise the loop.
    constexpr size_t few = 112;
    for (; text.size() >= few; text.remove_prefix(few)) {
        unsigned char sum = 0;
        for (size_t i = 0; i < few; ++i) {
            sum = static_cast<unsigned char>(sum + units(text[i]));
        }
        length += sum;
    }
    for (const char byte : text) {
        length += units(byte);
    }
    return length;
}

// Allocates for many characters at once, and returns what they didn't need.
void append(std::vector<char>& out, const QString& text) {
    constexpr int most = 16384;
    constexpr size_t longestUnit = 3;
    for (int i = 0; i < text.size();) {
        const int end = i + std::min(most, text.size() - i);
        const size_t size = out.size();
        out.resize(size + longestUnit * static_cast<size_t>(end - i + 1));
        char* at = out.data() + size;
        for (; i < end; ++i) {
            char32_t c = text[i].unicode();
            if (QChar::isHighSurrogate(c) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
                c = QChar::surrogateToUcs4(static_cast<ushort>(c), text[++i].unicode());
            }
            at = putCharacter(at, c);
        }
        out.resize(static_cast<size_t>(at - out.data()));
    }
}

QString decode(std::string_view text) {
    constexpr size_t limit = size_t(1) << 29;
    text = text.substr(0, limit);
    const int size = static_cast<int>(text.size());
    if (isAscii(text)) {
        return QString::fromLatin1(text.data(), size);
    }
    QString result;
    result.reserve(size);
    for (qint64 offset = 0; offset < size;) {
        const char32_t c = next(text, offset);
        if (QChar::requiresSurrogates(c)) {
            result.append(QChar(QChar::highSurrogate(c))).append(QChar(QChar::lowSurrogate(c)));
        } else {
            result.append(QChar(static_cast<ushort>(c)));
        }
    }
    return result;
}

}  // namespace FUtf8
