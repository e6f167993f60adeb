#pragma once

#include <QtGlobal>

#include <optional>

#include "genericintegration/io/FByteRange.h"

class FResultText;

/**
 * A part of a text, seen as lines in the way of a text stream: a line ends at LF or CR LF; a CR at the end of all
 * isn't part of the last line; behind an LF at the end of all there is no further line.
 */
class FLineWindow {
 public:
    /** The text must outlive this object. */
    FLineWindow(const FResultText& text, FByteRange part) : mText(text), mPart(part) {}

    /** Number of lines. */
    qint64 count() const;

    /**
     * A line, from 0, without its end; nothing beyond the last one. The cost doesn't depend on where and how long it
     * is.
     */
    std::optional<FByteRange> line(qint64 number) const;

    /** The line that begins at an offset of the window. The offset is moved to the next one, or to the window's end. */
    FByteRange lineFrom(qint64& offset) const;

 private:
    qint64 lineBegin(qint64 number) const;
    FByteRange withoutEnd(qint64 begin, qint64 end) const;

    const FResultText& mText;
    FByteRange mPart;
};
