#include "host/run/FFileDigest.h"

#include "host/core/FFile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace FFileDigest {
namespace {

/** Some disks have clocks this coarse: a younger file may change again without a change of its time. */
constexpr qint64 coarsestClock = 2'000;

/** A file at the time when it was read. */
struct FKnownFile {
    qint64 size = -1;
    QDateTime changed{};
    QString digest{};
};

}  // namespace

QString of(const QString& path) {
    static QHash<QString, FKnownFile> known;
    const QFileInfo info(path);
    QFile file(path);
    if (!FFile::openOrdinary(file).isEmpty()) {
        return {};
    }
    FKnownFile& entry = known[info.canonicalFilePath()];
    if (entry.size != info.size() || entry.changed != info.lastModified()) {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        hash.addData(&file);
        const QDateTime changed = info.lastModified();
        const bool isSettled = changed.msecsTo(QDateTime::currentDateTime()) > coarsestClock;
        entry = {info.size(), isSettled ? changed : QDateTime(), QString::fromLatin1(hash.result().toHex())};
    }
    return entry.digest;
}

}  // namespace FFileDigest
