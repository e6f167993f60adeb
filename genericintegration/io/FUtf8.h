#pragma once

#include <QString>

#include <string_view>
#include <vector>

/**
 * UTF-8 as the reader works on it: every text is valid, but for half surrogate pairs of a QString, which stand as
 * three bytes of their own, so that encoding and decoding lose nothing. A byte order mark is a character like others.
 *
 * Offsets are of bytes. None of these functions needs more than the text it is given.
 */
namespace FUtf8 {

/** What next() gives for bytes that are no character. */
constexpr char32_t NoCharacter = 0xFFFFFFFF;

/** Number of bytes that a character takes at most. */
constexpr qint64 LongestCharacter = 4;

inline bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}
inline bool isAscii(char byte) {
    return static_cast<signed char>(byte) >= 0;
}
bool isAscii(std::string_view text);

/** As next(), for a character that isn't ASCII. */
char32_t nextNonAscii(std::string_view text, qint64& offset);

/** The character at an offset inside the text. The offset is moved behind it. */
inline char32_t next(std::string_view text, qint64& offset) {
    const char byte = text[static_cast<size_t>(offset)];
    if (!isAscii(byte)) {
        return nextNonAscii(text, offset);
    }
    ++offset;
    return static_cast<char32_t>(byte);
}

/** The character by which QString compares when it ignores case. */
inline char32_t foldCase(char32_t c) {
    if (c < 0x80) {
        return c >= U'A' && c <= U'Z' ? c | 0x20 : c;
    }
    return c == NoCharacter ? c : QChar::toCaseFolded(c);
}

/** Offset of the character before one; the offset is above 0. */
qint64 previous(std::string_view text, qint64 offset);

/** Offset of the first character, from one on, that isn't white space. */
qint64 skipSpace(std::string_view text, qint64 offset);

/** Size of the text without the white space at its end. */
qint64 trimmedSize(std::string_view text);

/** Number of UTF-16 units of the text. */
qint64 utf16Length(std::string_view text);

/** Writes a character; returns the end of its bytes, of which there are LongestCharacter at most. */
char* putCharacter(char* out, char32_t c);

/** Appends a text; a pair of surrogates mustn't be split between two calls. */
void append(std::vector<char>& out, const QString& text);

/** A text that holds more than a QString can is cut. */
QString decode(std::string_view text);

}  // namespace FUtf8
