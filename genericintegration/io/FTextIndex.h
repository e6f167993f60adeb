#pragma once

#include <QtGlobal>

#include <string_view>
#include <vector>

/**
 * Where the lines of a text begin, and how many UTF-16 units lie before a place. Made in one pass over the text; it
 * takes some 8 bytes per 1000 of the text, whatever the lines' length. A question costs a search in one small block.
 *
 * Line n begins behind the n-th line feed; line 0 at the start of the text. The text must outlive this object. Should
 * its bytes have changed, answers are wrong, but within the text.
 */
class FTextIndex {
 public:
    explicit FTextIndex(std::string_view text);

    bool isAscii() const { return mAscii; }

    /** Number of line feeds before an offset from 0 to the size of the text: the line that the offset is in. */
    qint64 lineAt(qint64 offset) const;

    /** Where the line begins that an offset is in. */
    qint64 lineBegin(qint64 offset) const;

    /** The first line feed at an offset or behind it, or -1. */
    qint64 lineFeed(qint64 offset) const;

    /** Offset at which a line begins, or -1 beyond the last line feed. */
    qint64 lineStart(qint64 line) const;

    /** Number of UTF-16 units before an offset. */
    qint64 utf16At(qint64 offset) const { return mAscii ? offset : utf16InText(offset); }

 private:
    qint64 utf16InText(qint64 offset) const;
    std::string_view block(qint64 begin, qint64 end) const;

    std::string_view mText;
    std::vector<qint64> mLines;  //!< line feeds before each block
    std::vector<qint64> mUnits;  //!< UTF-16 units before each block
    bool mAscii = true;
};
