#include "host/lodm/FRunFolderFile.h"

#include "host/core/FFile.h"
#include "host/core/FMerixCtrl.h"
#include "host/run/FPathManager.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr qint64 blockSize = qint64{1} << 20;

QString fromProject(const QString& path) {
    const QString& project = FMerixCtrl::instance()->getProjectFile();
    return project.isEmpty() ? path : QFileInfo(project).dir().filePath(path);
}

bool begin(QSaveFile& file) {
    return FPathManager::removeLink(file.fileName()) && file.open(QIODevice::WriteOnly);
}

/** Also tells of a disk that takes no more, which `commit` alone overlooks for what is still gathered. */
bool finish(QSaveFile& file) {
    return file.flush() && file.commit();
}

bool copyBytes(QFile& from, QSaveFile& to) {
    for (;;) {
        const QByteArray block = from.read(blockSize);
        if (block.isEmpty()) {
            return from.error() == QFileDevice::NoError;
        }
        if (to.write(block) != block.size()) {
            return false;
        }
    }
}

QString cantWrite(const QSaveFile& file) {
    return QStringLiteral("can't write \"%1\": %2").arg(file.fileName(), file.errorString());
}

}  // namespace

// Joined as it stands: a name that begins with a slash lies in the folder, too.
FRunFolderFile::FRunFolderFile(const QString& folder, const QString& name)
    : mFolder(folder),
      mName(name),
      mPath(folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name) {}

QString FRunFolderFile::prepare() const {
    if (mName.isEmpty()) {
        return QStringLiteral("it names no file");
    }
    if (FPathManager::leadsOut(mFolder, mName)) {
        return QStringLiteral("\"%1\" would lie outside the folder of the run").arg(mName);
    }
    const QString folder = QFileInfo(mPath).path();
    return QDir().mkpath(folder) ? QString() : QStringLiteral("can't make the folder \"%1\"").arg(folder);
}

QString FRunFolderFile::copyFrom(const QString& source) const {
    QFile from(fromProject(source));
    if (source.isEmpty()) {
        return QStringLiteral("it names no file");
    }
    if (const QString fault = FFile::openOrdinary(from); !fault.isEmpty()) {
        return QStringLiteral("can't read \"%1\": %2").arg(QFileInfo(from).absoluteFilePath(), fault);
    }
    const QString reason = prepare();
    const QFileInfo target(mPath);
    const bool isThere = !target.isSymLink() && QFileInfo(from).canonicalFilePath() == target.canonicalFilePath();
    if (!reason.isEmpty() || isThere) {
        return reason;
    }
    QSaveFile to(mPath);
    if (!begin(to) || !copyBytes(from, to)) {
        return from.error() == QFileDevice::NoError
                   ? cantWrite(to)
                   : QStringLiteral("can't read \"%1\": %2").arg(from.fileName(), from.errorString());
    }
    to.setPermissions(from.permissions() | QFileDevice::WriteOwner);
    return finish(to) ? QString() : cantWrite(to);
}

QString FRunFolderFile::write(const QByteArray& bytes) const {
    const QString reason = prepare();
    if (!reason.isEmpty()) {
        return reason;
    }
    QSaveFile to(mPath);
    const bool done = begin(to) && to.write(bytes) == bytes.size() && finish(to);
    return done ? QString() : cantWrite(to);
}
