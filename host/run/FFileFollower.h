#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QTextDecoder>

#include <memory>

/**
 * Gives the text that a program appends to a file, piece by piece. The file needn't exist yet. Of more than `most`
 * bytes that came in between, only the end is given, so that a reader keeps up with any program.
 */
class MERIX_EXPORT FFileFollower {
 public:
    static constexpr qint64 most = 64 << 10;

    explicit FFileFollower(const QString& path);

    const QString& getPath() const { return mPath; }
    /**
     * The text appended since the last call, from UTF-8: invalid bytes become U+FFFD, and a character whose bytes
     * aren't all there yet comes with the next call.
     */
    QString takeText();
    /** Whether the last call started at the beginning, since the file had become shorter or is another one. */
    bool hasRestarted() const { return mHasRestarted; }
    /** Bytes before the text of the last call that it left out. */
    qint64 getLeftOut() const { return mLeftOut; }

 private:
    QString mPath;
    std::unique_ptr<QTextDecoder> mDecoder;
    qint64 mOffset = 0;
    quint64 mFileId = 0;
    qint64 mLeftOut = 0;
    bool mHasRestarted = false;
};
