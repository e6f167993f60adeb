#include "host/run/FPathManager.h"

#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FDesign.h"
#include "host/run/FExternComputation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <utility>

namespace {

/** Where temporary folders are made; without this, those of a TMPDIR that isn't there would be made in the root. */
QString temporaryPlace() {
    const QString place = QDir::tempPath();
    return place.isEmpty() ? QStringLiteral("/tmp") : place;
}

}  // namespace

FPathManager* FPathManager::instance() {
    static FPathManager manager;
    return &manager;
}

QString FPathManager::resultsRoot() {
    const QString& project = FMerixCtrl::instance()->getProjectFile();
    if (!project.isEmpty()) {
        const QFileInfo file(project);
        return file.absolutePath() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".results");
    }
    if (mTemporaryRoot.isEmpty()) {
        const QString place = temporaryPlace();
        QTemporaryDir folder(place + QStringLiteral("/merix-XXXXXX"));
        folder.setAutoRemove(false);
        if (!folder.isValid()) {
            // Can't be made either, so that the run tells where it should have been.
            return place + QStringLiteral("/merix-%1").arg(QCoreApplication::applicationPid());
        }
        mTemporaryRoot = folder.path();
        FLogMsg::info(QStringLiteral("merix"),
                      QStringLiteral("The project has no file yet; its runs are kept in %1").arg(mTemporaryRoot),
                      QStringLiteral("they stay there; remove the folder when you no longer need it"));
    }
    return mTemporaryRoot;
}

QString FPathManager::getDesignDir(const FExpr<FDesign>& design) {
    const FDesign* object = design.ptr();
    return resultsRoot() + QLatin1Char('/') + (object ? object->getName() : QStringLiteral("baseline"));
}

QString FPathManager::getResultsDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    const FExternComputation* object = computation.ptr();
    return getDesignDir(design) + (object ? QLatin1Char('/') + object->getName() : QString());
}

QString FPathManager::getInputDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    const bool ofRun = !computation && !design && !mRunFolder.isEmpty();
    return ofRun ? mRunFolder : getResultsDir(computation, design) + QLatin1Char('/');
}

QString FPathManager::getResultPath(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    return getInputDir(computation, design);
}

QString FPathManager::getEarlierDir(const QString& computation, const FExpr<FDesign>& design) {
    return getDesignDir(design) + QStringLiteral("/.earlier/") + computation;
}

QString FPathManager::getSamplesDir() const {
    const QDir shared(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/merix/examples"));
    return shared.exists() ? shared.canonicalPath() : QDir::homePath();
}

bool FPathManager::leadsOut(const QString& fileName) {
    if (!fileName.contains(QLatin1String(".."))) {
        return false;
    }
    QString name = fileName;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // The joined path starts with the folder's own slash, so a name with one at its begin stays inside.
    const QString cleaned = QDir::cleanPath(QStringLiteral("./") + name);
    return cleaned == QLatin1String("..") || cleaned.startsWith(QLatin1String("../"));
}

bool FPathManager::leadsOut(const QString& folder, const QString& fileName) {
    const bool isInFolders = fileName.contains(QLatin1Char('/')) || fileName.contains(QLatin1Char('\\'));
    if (leadsOut(fileName)) {
        return true;
    }
    if (!isInFolders) {
        return false;
    }
    const QString base = QDir::cleanPath(folder);
    QString path = QFileInfo(base + QLatin1Char('/') + fileName).path();
    // Folders that aren't there yet are made below the last one that is.
    while (path.size() > base.size() && !QFileInfo::exists(path)) {
        path = QFileInfo(path).path();
    }
    const QString root = QFileInfo(base).canonicalFilePath();
    const QString real = QFileInfo(path).canonicalFilePath();
    return !root.isEmpty() && real != root && !real.startsWith(root + QLatin1Char('/'));
}

// Asked of the system, which tells all of it in one call.
bool FPathManager::removeLink(const QString& path) {
    struct stat status {};
    const bool isThere = ::lstat(QFile::encodeName(path).constData(), &status) == 0;
    const bool isOwn = S_ISDIR(status.st_mode) || (S_ISREG(status.st_mode) && status.st_nlink == 1);
    return !isThere || isOwn || QFile::remove(path);
}

// Mostly the file is new. If not, it is emptied, not replaced: who may read or run it stays as it is.
bool FPathManager::openForWriting(QFile& file) {
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    return file.open(mode | QIODevice::NewOnly) ||
           (removeLink(file.fileName()) && file.open(mode | QIODevice::Truncate));
}

FRunScope::FRunScope(const QString& folder) : mBefore(std::exchange(FPathManager::instance()->mRunFolder, folder)) {}

FRunScope::~FRunScope() {
    FPathManager::instance()->mRunFolder = mBefore;
}
