#include "host/run/FPathManager.h"

#include "host/core/FChanges.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FDesign.h"
#include "host/run/FExternComputation.h"
#include "host/run/FRunRelocation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QObject>
#include <QTemporaryDir>

#include <utility>

namespace {

/** The folder for temporary folders. QDir gives an empty one for a TMPDIR that doesn't exist, which would be "/". */
QString temporaryPlace() {
    const QString place = QDir::tempPath();
    return place.isEmpty() ? QStringLiteral("/tmp") : place;
}

}  // namespace

FPathManager::FPathManager() {
    connectToModel();
}

void FPathManager::connectToModel() {
    const FChanges* changes = FChanges::instance();
    QObject::connect(changes, &FChanges::projectSaved, [this] { takeSaved(); });
    QObject::connect(changes, &FChanges::projectOpened, [this] { takeOpened(); });
    QObject::connect(changes, &FChanges::projectClosed, [this] { takeOpened(); });
    QObject::connect(changes, &FChanges::objectEntered,
                     [this](const FManaged* object) { mNames.nameTaken(*object, knownRoot()); });
    QObject::connect(changes, &FChanges::objectRenamed, [this](const FManaged* object, const QString& oldName) {
        mNames.renamed(*object, oldName, knownRoot());
    });
}

const QString& FPathManager::baseline() {
    return FDesign::reservedName();
}

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
        if (FMerixCtrl::instance()->isReadOnly()) {
            return place + QStringLiteral("/merix-none");
        }
        QTemporaryDir folder(place + QStringLiteral("/merix-XXXXXX"));
        folder.setAutoRemove(false);
        if (!folder.isValid()) {
            // It can't be created either, so the run reports its path.
            return place + QStringLiteral("/merix-%1").arg(QCoreApplication::applicationPid());
        }
        mTemporaryRoot = folder.path();
        FLogMsg::info(QStringLiteral("merix"),
                      QStringLiteral("The project has no file yet; the folder of its runs is %1").arg(mTemporaryRoot),
                      QStringLiteral("The folder is kept after exit; remove it when you no longer need it"));
    }
    return mTemporaryRoot;
}

bool FPathManager::hasRoot() const {
    return !mTemporaryRoot.isEmpty() || !FMerixCtrl::instance()->getProjectFile().isEmpty();
}

/** Empty if there can't be any runs yet. */
QString FPathManager::knownRoot() {
    return hasRoot() ? resultsRoot() : QString();
}

void FPathManager::takeOpened() {
    mNames.forget();
    // Runs of the project before, which never got a file, aren't those of this one.
    mTemporaryRoot.clear();
    mProjectRoot = FMerixCtrl::instance()->getProjectFile().isEmpty() ? QString() : resultsRoot();
}

void FPathManager::takeSaved() {
    moveTemporaryRuns();
    const QString earlier = std::exchange(mProjectRoot, resultsRoot());
    if (!earlier.isEmpty() && earlier != mProjectRoot) {
        reportOtherRoot(earlier);
        mNames.forget();
    }
    mNames.apply(mProjectRoot);
}

void FPathManager::reportOtherRoot(const QString& earlier) const {
    if (QDir(earlier).exists()) {
        FLogMsg::info(QStringLiteral("merix"),
                      QStringLiteral("The runs stay in '%1', with the project's old file").arg(earlier),
                      QStringLiteral("To have them with the new one, too, copy that folder to '%1', or run again")
                          .arg(mProjectRoot));
    }
}

void FPathManager::moveTemporaryRuns() {
    if (!mTemporaryRoot.isEmpty()) {
        FRunRelocation(mTemporaryRoot, resultsRoot()).moveAll();
    }
    if (!QDir(mTemporaryRoot).exists()) {
        mTemporaryRoot.clear();
    }
}

void FPathManager::runMoved(const QString& from, const QString& to) {
    if (mLastRunFolder == from) {
        mLastRunFolder = to;
    }
}

QString FPathManager::designDir(const FDesign* design) {
    return resultsRoot() + QLatin1Char('/') + (design ? mNames.of(*design) : baseline());
}

QString FPathManager::currentRunFolder() {
    if (!mRunFolder.isEmpty() || mLastRunFolder.isEmpty()) {
        return mRunFolder;
    }
    const bool isOfProject = mLastRunFolder.startsWith(resultsRoot() + QLatin1Char('/'));
    return isOfProject ? mLastRunFolder : QString();
}

QString FPathManager::getProjectDir() {
    const QString& project = FMerixCtrl::instance()->getProjectFile();
    return project.isEmpty() ? QDir::currentPath() : QFileInfo(project).absolutePath();
}

QString FPathManager::getDesignDir(const FExpr<FDesign>& design) {
    const QString folder = design ? QString() : currentRunFolder();
    return folder.isEmpty() ? designDir(design.ptr()) : QFileInfo(QDir::cleanPath(folder)).path();
}

QString FPathManager::getResultsDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    const FExternComputation* object = computation.ptr();
    return object ? designDir(design.ptr()) + QLatin1Char('/') + mNames.of(*object) : getDesignDir(design);
}

QString FPathManager::getInputDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    const QString folder = computation || design ? QString() : currentRunFolder();
    return folder.isEmpty() ? getResultsDir(computation, design) + QLatin1Char('/') : folder;
}

QString FPathManager::getResultPath(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    return getInputDir(computation, design);
}

QString FPathManager::getEarlierDir(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design) {
    return designDir(design.ptr()) + QStringLiteral("/.earlier/") + mNames.of(*computation.ptr());
}

QString FPathManager::getSamplesDir() const {
    const QDir shared(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/merix/examples"));
    return shared.exists() ? shared.canonicalPath() : QDir::homePath();
}

FRunScope::FRunScope(const QString& folder) : mBefore(std::exchange(FPathManager::instance()->mRunFolder, folder)) {}

FRunScope::~FRunScope() {
    FPathManager::instance()->mRunFolder = mBefore;
}
