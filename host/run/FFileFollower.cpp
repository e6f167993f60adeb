#include "host/run/FFileFollower.h"

#include "host/core/FFile.h"
#include "host/run/FUtf8.h"

#include <QFile>
#include <QTextCodec>

#include <sys/stat.h>

namespace {

std::unique_ptr<QTextDecoder> makeDecoder() {
    return std::make_unique<QTextDecoder>(QTextCodec::codecForName("UTF-8"));
}

quint64 idOf(const QFile& file) {
    struct stat status {};
    return ::fstat(file.handle(), &status) == 0 ? status.st_ino : 0;
}

/** Where to begin in the end of a long text: after the first line feed, else at a character. */
int beginOf(const QByteArray& bytes) {
    const int lineFeed = bytes.indexOf('\n');
    if (lineFeed >= 0) {
        return lineFeed + 1;
    }
    int begin = 0;
    while (begin < bytes.size() && FUtf8::isContinuation(bytes.at(begin))) {
        ++begin;
    }
    return begin;
}

}  // namespace

FFileFollower::FFileFollower(const QString& path) : mPath(path), mDecoder(makeDecoder()) {}

QString FFileFollower::takeText() {
    mHasRestarted = false;
    mLeftOut = 0;
    QFile file(mPath);
    if (!FFile::openOrdinary(file, QIODevice::ReadOnly | QIODevice::Unbuffered).isEmpty()) {
        return {};
    }
    const qint64 size = file.size();
    const quint64 id = idOf(file);
    if (size < mOffset || (mFileId != 0 && id != mFileId)) {
        mHasRestarted = true;
        mOffset = 0;
        mDecoder = makeDecoder();
    }
    mFileId = id;
    if (size - mOffset > most) {
        mLeftOut = size - most - mOffset;
        mOffset = size - most;
        mDecoder = makeDecoder();
    }
    file.seek(mOffset);
    QByteArray bytes = file.read(size - mOffset);
    mOffset += bytes.size();
    if (mLeftOut > 0) {
        const int begin = beginOf(bytes);
        mLeftOut += begin;
        bytes.remove(0, begin);
    }
    return mDecoder->toUnicode(bytes);
}
