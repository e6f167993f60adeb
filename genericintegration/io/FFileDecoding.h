#pragma once

#include <string_view>
#include <vector>

/**
 * What a text stream with the codec UTF-8 makes of a file opened without text mode: a byte order mark of UTF-8, UTF-16
 * or UTF-32 is obeyed and dropped, bytes that mean nothing become U+FFFD, line ends stay as they are.
 */
namespace FFileDecoding {

/**
 * Size of the byte order mark, if the bytes behind it are the text as they stand; otherwise -1, and decode() is
 * needed.
 */
int plainTextOffset(std::string_view file);

/** The text of any bytes, in the encoding of FUtf8. */
std::vector<char> decode(std::string_view file);

}  // namespace FFileDecoding
