#pragma once

#include "genericintegration/io/FAnchor.h"
#include "genericintegration/io/FAnchorSearch.h"
#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/marking/FTextRange.h"
#include "host/run/FResultText.h"

#include <QString>

#include <optional>
#include <vector>

struct FSeparatorSettings;
struct FValueDescription;

/**
 * The sample text of a result template, in two views: as the document of an editor, and as the text that the reader
 * searches. Both differ in their lines and positions.
 *
 * Construction takes time linear in the text. The places of the last anchor are kept, so that another line or column
 * with the same anchor is found without a pass over the text.
 */
class FResultSample {
 public:
    explicit FResultSample(const QString& content);

    // ---- the document ----
    /** Position of its end. */
    int documentEnd() const { return mLines.back().position + lineLength(lineCount() - 1); }
    int lineCount() const { return static_cast<int>(mLines.size()); }
    /** A line, numbered from 0, without its end. */
    QString line(int number) const;
    int lineLength(int number) const;
    int linePosition(int number) const { return mLines[static_cast<std::size_t>(number)].position; }
    int lineAtPosition(int position) const;
    /** The last line that isn't blank; -1 if all are. */
    int lastFilledLine() const;
    /** The first or last place of an anchor, in any case; NBSP in the text counts as a blank. */
    std::optional<FTextRange> find(const FAnchor& anchor) const;

    // ---- what the reader sees ----
    /** The value as the reader finds it. */
    FFoundValue read(const FValueDescription& value, const FSeparatorSettings& separators) const;
    /** The place in the document of a text that the reader found. Line and column count from 1 in the reader's lines.
     */
    FTextRange rangeOf(qint64 line, qint64 column, int length) const;
    /** Offset in the reader's text of a position of the document. */
    qint64 offsetAt(int position) const;
    const FResultText& text() const { return mText; }
    /** A line of that text, numbered from 0; of a long one, the start. */
    QString lineRead(qint64 number) const;

 private:
    /** A line of the document. */
    struct Line {
        int offset;    //!< in the content
        int position;  //!< in the document, which counts each line end as one
    };
    /** The places of an anchor. */
    struct Anchor {
        QString text;
        FAnchorPlaces inTrimmed{};   //!< of the reader's text
        FAnchorPlaces inDocument{};  //!< in the searched text
    };

    const FResultText& searched() const { return mWithBlanks ? *mWithBlanks : mText; }
    const Anchor& lookUp(const QString& anchor) const;
    int lineAtOffset(int offset) const;
    int positionOf(int offset) const;

    QString mContent;
    FResultText mText;
    std::optional<FResultText> mWithBlanks;  //!< if there is an NBSP: the text with blanks instead
    std::vector<Line> mLines;
    mutable std::optional<Anchor> mAnchor;
};
