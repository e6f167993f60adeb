#include "host/run/FPathManager.h"

#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FDesign.h"
#include "host/run/FExternComputation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

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

FRunScope::FRunScope(const QString& folder) : mBefore(std::exchange(FPathManager::instance()->mRunFolder, folder)) {}

FRunScope::~FRunScope() {
    FPathManager::instance()->mRunFolder = mBefore;
}
