#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <string_view>
#include <vector>

/**
 * Functions on texts in UTF-8 as FResultText holds them. Every text is valid, except that an unpaired surrogate of a
 * QString is encoded as three bytes of its own, so that encoding and decoding lose nothing. A byte order mark is a
 * character like any other.
 *
 * Offsets are in bytes. None of these functions reads outside the text that it is given. Those that a search calls for
 * each character or line are inline.
 */
namespace FUtf8 {

/** Result of next() for bytes that aren't a character. */
constexpr char32_t noCharacter = 0xFFFFFFFF;

/** Maximum number of bytes of a character. */
constexpr qint64 longestCharacter = 4;

inline bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}
inline bool isAscii(char byte) {
    return static_cast<signed char>(byte) >= 0;
}
MERIX_EXPORT bool isAscii(std::string_view text);

/** Like next(), for a character that isn't ASCII. */
inline char32_t nextNonAscii(std::string_view text, qint64& offset) {
    // Indexed by the upper four bits of a character's first byte.
    constexpr signed char lengths[] = {1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 2, 2, 3, 4};
    constexpr unsigned char leadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    const auto byteAt = [text](qint64 place) { return static_cast<unsigned char>(text[static_cast<size_t>(place)]); };
    const unsigned char lead = byteAt(offset);
    const qint64 length = lengths[lead >> 4];
    if (length == 0 || length > static_cast<qint64>(text.size()) - offset) {
        ++offset;
        return noCharacter;
    }
    char32_t c = lead & leadBits[length];
    for (const qint64 end = offset + length; ++offset < end;) {
        c = (c << 6) | (byteAt(offset) & 0x3F);
    }
    return c <= QChar::LastValidCodePoint ? c : noCharacter;
}

/** Returns the character at an offset inside the text, and moves the offset to the next one. */
inline char32_t next(std::string_view text, qint64& offset) {
    const char byte = text[static_cast<size_t>(offset)];
    if (!isAscii(byte)) {
        return nextNonAscii(text, offset);
    }
    ++offset;
    return static_cast<char32_t>(byte);
}

/** The character that QString compares instead of this one when it ignores case. */
inline char32_t foldCase(char32_t c) {
    if (c < 0x80) {
        return c >= U'A' && c <= U'Z' ? c | 0x20 : c;
    }
    return c == noCharacter ? c : QChar::toCaseFolded(c);
}

/** Offset of the character before an offset above 0. */
inline qint64 previous(std::string_view text, qint64 offset) {
    do {
        --offset;
    } while (offset > 0 && isContinuation(text[static_cast<size_t>(offset)]));
    return offset;
}

/** Offset of the first character at or after an offset that isn't white space. */
inline qint64 skipSpace(std::string_view text, qint64 offset) {
    while (offset < static_cast<qint64>(text.size())) {
        qint64 after = offset;
        if (!QChar::isSpace(next(text, after))) {
            break;
        }
        offset = after;
    }
    return offset;
}

/** Writes a character, at most longestCharacter bytes, and returns the end of what it wrote. */
inline char* putCharacter(char* out, char32_t c) {
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

/** Size of the text without trailing white space. */
MERIX_EXPORT qint64 trimmedSize(std::string_view text);

/** Number of UTF-16 units of the text. */
MERIX_EXPORT qint64 utf16Length(std::string_view text);

/** Appends a text. Two calls mustn't split a surrogate pair between them. */
MERIX_EXPORT void append(std::vector<char>& out, const QString& text);

/** The text as a QString; one that is too long for a QString is cut. */
MERIX_EXPORT QString decode(std::string_view text);

}  // namespace FUtf8
