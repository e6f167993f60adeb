#include "genericintegration/io/FUtf8.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace FUtf8 {
namespace {

unsigned char byteAt(std::string_view text, qint64 offset) {
    return static_cast<unsigned char>(text[static_cast<size_t>(offset)]);
}

qint64 sizeOf(std::string_view text) {
    return static_cast<qint64>(text.size());
}

// Indexed by the upper four bits of a character's first byte.
constexpr std::array<signed char, 16> Lengths = {1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 2, 2, 3, 4};
constexpr std::array<unsigned char, 5> LeadBits = {0, 0x7F, 0x1F, 0x0F, 0x07};

}  // namespace

bool isAscii(std::string_view text) {
    constexpr size_t Step = 64;
    size_t offset = 0;
    for (; offset + Step <= text.size(); offset += Step) {
        std::array<quint64, Step / 8> words;
        std::memcpy(words.data(), text.data() + offset, Step);
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

char32_t nextNonAscii(std::string_view text, qint64& offset) {
    const unsigned char lead = byteAt(text, offset);
    const qint64 length = Lengths[lead >> 4];
    if (length == 0 || length > sizeOf(text) - offset) {
        ++offset;
        return NoCharacter;
    }
    char32_t c = lead & LeadBits[static_cast<size_t>(length)];
    for (const qint64 end = offset + length; ++offset < end;) {
        c = (c << 6) | (byteAt(text, offset) & 0x3F);
    }
    return c <= QChar::LastValidCodePoint ? c : NoCharacter;
}

qint64 previous(std::string_view text, qint64 offset) {
    do {
        --offset;
    } while (offset > 0 && isContinuation(text[static_cast<size_t>(offset)]));
    return offset;
}

qint64 skipSpace(std::string_view text, qint64 offset) {
    while (offset < sizeOf(text)) {
        qint64 behind = offset;
        if (!QChar::isSpace(next(text, behind))) {
            break;
        }
        offset = behind;
    }
    return offset;
}

qint64 trimmedSize(std::string_view text) {
    qint64 end = sizeOf(text);
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
    // So few that the sum fits into a byte, which lets the compiler look at many bytes at once.
    constexpr size_t Few = 112;
    for (; text.size() >= Few; text.remove_prefix(Few)) {
        unsigned char sum = 0;
        for (size_t i = 0; i < Few; ++i) {
            sum = static_cast<unsigned char>(sum + units(text[i]));
        }
        length += sum;
    }
    for (const char byte : text) {
        length += units(byte);
    }
    return length;
}

char* putCharacter(char* out, char32_t c) {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (c < 0x80) {
        put(c);
        return out;
    }
    if (c < 0x800) {
        put(0xC0 | (c >> 6));
    } else {
        if (c < 0x10000) {
            put(0xE0 | (c >> 12));
        } else {
            put(0xF0 | (c >> 18));
            put(0x80 | ((c >> 12) & 0x3F));
        }
        put(0x80 | ((c >> 6) & 0x3F));
    }
    put(0x80 | (c & 0x3F));
    return out;
}

// Room is made for many characters at once, and what they didn't need is given back.
void append(std::vector<char>& out, const QString& text) {
    constexpr int Units = 16384;
    constexpr size_t LongestUnit = 3;
    for (int i = 0; i < text.size();) {
        const int end = i + std::min(Units, text.size() - i);
        const size_t size = out.size();
        out.resize(size + LongestUnit * static_cast<size_t>(end - i + 1));
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
    constexpr size_t Limit = size_t(1) << 29;
    text = text.substr(0, Limit);
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
