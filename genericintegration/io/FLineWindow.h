#pragma once

#include "genericintegration/io/FByteRange.h"

#include <QtGlobal>

#include <optional>

class FResultText;

/**
 * The lines of a part of a text, as a QTextStream reads them: a line ends at LF or CR LF; a CR at the end of the part
 * isn't part of the last line; no line follows an LF at the end of the part.
 */
class FLineWindow {
 public:
    /** The text must outlive this object. */
    FLineWindow(const FResultText& text, FByteRange part) : mText(text), mPart(part) {}

    /** Number of lines. */
    qint64 count() const;

    /** A line, numbered from 0, without its end; none after the last one. Takes constant time. */
    std::optional<FByteRange> line(qint64 number) const;

    /** The line that starts at an offset of the window. Moves the offset to the next line, or to the end of the window.
     */
    FByteRange lineFrom(qint64& offset) const;

 private:
    qint64 lineBegin(qint64 number) const;
    FByteRange withoutEnd(qint64 begin, qint64 end) const;

    const FResultText& mText;
    FByteRange mPart;
};
