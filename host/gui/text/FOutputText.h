#pragma once

#include "host/core/FExport.h"
#include "host/run/FFileBytes.h"
#include "host/run/FTextIndex.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

/**
 * The text of an output file for a viewer, which may be very large and may grow. Its lines are found by their offsets
 * in bytes: at once near any place, and by their numbers as far as the index reaches, which is made in slices.
 *
 * Lines count from 0, columns from 0 in UTF-16 units. A file in UTF-16 or UTF-32 is decoded as a whole.
 */
class MERIX_EXPORT FOutputText {
 public:
    enum class Change {
        None,
        Grown,     //!< the beginning is as before
        Replaced,  //!< the file has become shorter, or is another one
    };

    /** Opens a file. Returns the reason if that fails, else an empty text. */
    QString open(const QString& path);
    /** Takes on what the file has become. One that is gone, or can't be read now, stays as it was. */
    Change refresh();

    const QString& getPath() const { return mPath; }
    std::string_view text() const { return mText; }
    qint64 size() const { return static_cast<qint64>(mText.size()); }

    /** Extends the index by a slice. Returns whether it covers the whole text. */
    bool indexSlice();
    bool isIndexed() const { return mIndex.size() == size(); }
    /** Number of lines that the index knows; the text after the last line feed counts as one. */
    qint64 lineCount() const { return mIndex.lineFeeds() + 1; }
    /** Number of the line at an offset; -1 if the index doesn't reach there yet. */
    qint64 lineAt(qint64 offset) const { return offset > mIndex.size() ? -1 : mIndex.lineAt(offset); }
    /** Offset of the start of a line; -1 if there is no such line in the index. */
    qint64 lineStart(qint64 line) const { return mIndex.lineStart(line); }

    /** Start of the line at an offset. */
    qint64 lineBegin(qint64 offset) const;
    /** End of the line at an offset, without its line end. */
    qint64 lineEnd(qint64 offset) const;
    /** Start of the next line; -1 if there is none. */
    qint64 nextLine(qint64 offset) const;
    /** Start of the line before; -1 if there is none. */
    qint64 previousLine(qint64 offset) const;
    /** Goes that many lines down, or up if negative, as far as there are lines. */
    qint64 moveLines(qint64 offset, qint64 lines) const;

    /** The offset of a column in the line that starts at an offset; at most the end of the line. */
    qint64 offsetOf(qint64 lineBegin, qint64 column) const;
    /** The column of an offset in its line. */
    qint64 columnOf(qint64 offset) const;

    /** A part as text. Bytes that aren't UTF-8 become U+FFFD. */
    QString decode(qint64 begin, qint64 end) const;

 private:
    QString load();
    /** Offset of the line feed that ends a line; the size, or how far it was looked for, if there is none. */
    qint64 findLineFeed(qint64 offset) const;

    QString mPath;
    std::optional<FFileBytes> mFile;
    qint64 mFileSize = 0;
    quint64 mFileId = 0;
    QDateTime mChanged;
    std::vector<char> mDecoded;
    std::string_view mText;
    FTextIndex mIndex;
};
