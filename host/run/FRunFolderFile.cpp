#include "host/run/FRunFolderFile.h"

#include "host/core/FFile.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSavedFile.h"
#include "host/run/FSafePath.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString fromProject(const QString& path) {
    const QString& project = FMerixCtrl::instance()->getProjectFile();
    return project.isEmpty() ? path : QFileInfo(project).dir().filePath(path);
}

QString cant(const char* what, const QString& path, const QString& reason) {
    return reason.isEmpty() ? QString()
                            : QStringLiteral("can't %1 \"%2\": %3").arg(QString::fromLatin1(what), path, reason);
}

}  // namespace

// A name that starts with a slash is relative to the folder, too.
FRunFolderFile::FRunFolderFile(const QString& folder, const QString& name)
    : mFolder(folder),
      mName(name),
      mPath(folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name) {}

QString FRunFolderFile::prepare() const {
    if (mName.isEmpty()) {
        return QStringLiteral("no file is named");
    }
    if (FSafePath::leadsOut(mFolder, mName)) {
        return QStringLiteral("\"%1\" would be outside the folder of the run").arg(mName);
    }
    const QString folder = QFileInfo(mPath).path();
    return QDir().mkpath(folder) ? QString() : QStringLiteral("can't create the folder \"%1\"").arg(folder);
}

QString FRunFolderFile::makeRoom() const {
    return FSafePath::removeLink(mPath) ? QString() : QStringLiteral("the existing file can't be removed");
}

QString FRunFolderFile::copyFrom(const QString& source) const {
    QFile from(fromProject(source));
    if (source.isEmpty()) {
        return QStringLiteral("no file is named");
    }
    if (const QString fault = FFile::openOrdinary(from); !fault.isEmpty()) {
        return cant("read", QFileInfo(from).absoluteFilePath(), fault);
    }
    QString reason = prepare();
    const QFileInfo target(mPath);
    const bool isThere = !target.isSymLink() && QFileInfo(from).canonicalFilePath() == target.canonicalFilePath();
    if (!reason.isEmpty() || isThere) {
        return reason;
    }
    reason = makeRoom();
    if (reason.isEmpty()) {
        reason = FSavedFile::keep(from, mPath);
    }
    return from.error() == QFileDevice::NoError ? cant("write", mPath, reason) : cant("read", from.fileName(), reason);
}

QString FRunFolderFile::write(const QByteArray& bytes) const {
    QString reason = prepare();
    if (!reason.isEmpty()) {
        return reason;
    }
    reason = makeRoom();
    return cant("write", mPath, reason.isEmpty() ? FSavedFile::write(mPath, bytes) : reason);
}
