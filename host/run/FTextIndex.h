#pragma once

#include "host/core/FExport.h"

#include <QtGlobal>

#include <string_view>
#include <vector>

/**
 * Converts between the offsets of a text, its line numbers and its UTF-16 units. The constructor makes one pass over
 * the text; the index takes about 8 bytes per 1000 of the text, whatever the lengths of the lines. A query searches
 * one small block.
 *
 * An index can also be made in steps: what it knows is then the beginning of the text.
 *
 * Line 0 starts at offset 0, line n after the n-th line feed. The text must outlive this object. If its bytes have
 * changed since, results are wrong but stay within the text.
 */
class MERIX_EXPORT FTextIndex {
 public:
    explicit FTextIndex(std::string_view text);
    /** Of an empty text, to be extended. */
    FTextIndex() = default;

    /**
     * Extends the index by about that many bytes. Returns whether it covers the whole text then.
     * @param text  begins with what is indexed already; may be longer than before, and at another place in memory
     */
    bool extend(std::string_view text, qint64 bytes);
    /** Size of the beginning of the text that the index covers. */
    qint64 size() const { return static_cast<qint64>(mText.size()); }
    /** Number of line feeds in it. */
    qint64 lineFeeds() const { return lineAt(size()); }

    /** Whether the whole text is ASCII. */
    bool isAscii() const { return mAscii; }

    /** Number of the line that contains an offset from 0 to the size of the text. */
    qint64 lineAt(qint64 offset) const;

    /** Offset of the start of the line that contains an offset. */
    qint64 lineBegin(qint64 offset) const;

    /** Offset of the first line feed at or after an offset, or -1. */
    qint64 lineFeed(qint64 offset) const;

    /** Offset of the start of a line, or -1 if there is no such line. */
    qint64 lineStart(qint64 line) const;

    /** Number of UTF-16 units before an offset. */
    qint64 utf16At(qint64 offset) const { return mAscii ? offset : utf16InText(offset); }

    /** Offset of the character that contains a UTF-16 unit; the size for one beyond the end. */
    qint64 offsetOfUtf16(qint64 unit) const;

 private:
    qint64 utf16InText(qint64 offset) const;
    std::string_view block(qint64 begin, qint64 end) const;

    std::string_view mText;
    std::vector<qint64> mLines{0};  //!< line feeds before each block
    std::vector<qint64> mUnits{0};  //!< UTF-16 units before each block
    bool mAscii = true;
};
