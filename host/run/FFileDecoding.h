#pragma once

#include "host/core/FExport.h"

#include <string_view>
#include <vector>

/**
 * Decodes files like a QTextStream with the codec UTF-8 on a file opened without text mode: a byte order mark of UTF-8,
 * UTF-16 or UTF-32 selects the encoding and is dropped, invalid bytes become U+FFFD, line ends are kept.
 */
namespace FFileDecoding {

/** Size of the byte order mark (0 if none) if the bytes after it are already the text; -1 if decode() is needed. */
int plainTextOffset(std::string_view file);

/**
 * Size of the byte order mark (0 if none) of a text whose bytes after it can be decoded line by line, as UTF-8 with
 * some invalid bytes at most; -1 if the mark is that of UTF-16 or UTF-32.
 */
MERIX_EXPORT int utf8Offset(std::string_view file);

/** Decodes any bytes. The result is in the encoding of FUtf8. */
MERIX_EXPORT std::vector<char> decode(std::string_view file);

}  // namespace FFileDecoding
