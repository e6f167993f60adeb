#include "genericintegration/connector/FItemDialogs.h"

#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/connector/dialogs/FSoftConInputDialog.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FIni.h"
#include "host/core/FUserStep.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"
#include "host/run/FPathManager.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>

namespace {

const QString& convertKey() {
    static const QString key = QStringLiteral("SoftwareConnector/convertToTemplate");
    return key;
}

const QString& pathKey() {
    static const QString key = QStringLiteral("SoftwareConnector/addTemplatePath");
    return key;
}

QString canonical(const QDir& folder) {
    return QFileInfo(folder.path()).canonicalFilePath();
}

bool isBelow(const QString& path, const QString& base) {
    const QFileInfo file(path);
    return !FItemPath::belowBase(file.exists() ? file.canonicalFilePath() : path, base + QLatin1Char('/')).isEmpty();
}

}  // namespace

void FItemDialogs::addInput() {
    FSoftConInputDialog dialog(&mConnector, QStringLiteral("Add file as input for external executable"), QString(),
                               QString(), FIni().value(convertKey()).toBool());
    addItem(dialog, FInputFile::null(), QStringLiteral("Add input files"));
}

void FItemDialogs::addOutput() {
    FSoftConDialog dialog(&mConnector, QStringLiteral("Add template file as output from external executable"),
                          QString(), QString());
    addItem(dialog, FGenIntResultsFile::null(), QStringLiteral("Add output templates"));
}

void FItemDialogs::addImport() {
    FSoftConResultFilesDialog dialog(
        &mConnector, QStringLiteral("Add geometry import as result from external executable"), QString(), QString());
    addItem(dialog, FResultsFileName::null(), QStringLiteral("Add result files"));
}

QString FItemDialogs::runFolder() const {
    FPathManager* paths = FPathManager::instance();
    const FExpr<FExternComputation> computation = mConnector.getComputation();
    const QString folder = paths->hasRoot() && computation
                               ? paths->getDesignDir({}) + QLatin1Char('/') + computation->getName()
                               : QString();
    return QDir(folder).exists() ? folder : QString();
}

QString FItemDialogs::startFolder(bool isInput) const {
    QString folder;
    if (!isInput) {
        folder = mConnector.getResultsPath().isEmpty() ? runFolder() : mConnector.getResultsPath();
    }
    if (folder.isEmpty() || !QDir(folder).exists()) {
        folder = FIni().value(pathKey()).toString();
    }
    return folder.isEmpty() ? FPathManager::getProjectDir() : folder;
}

// The connector may go while the dialog is open.
void FItemDialogs::addItem(FSoftConDialog& dialog, const FObject* type, const QString& label) {
    const bool isInput = type == FInputFile::null();
    dialog.setDirectory(startFolder(isInput));
    const QPointer<FSoftwareConnector> connector(&mConnector);
    if (dialog.exec() != QDialog::Accepted || !connector || !mConnector.isInModel()) {
        return;
    }
    const QStringList files = dialog.selectedFiles();
    QString base = canonical(dialog.directory());
    const QString run = runFolder();
    if (type == FResultsFileName::null() && !run.isEmpty() && !files.isEmpty() && base.contains(run)) {
        base = run;
    }
    const FUserStep step(label);
    bool keepFolders = false;
    if (const auto* input = dynamic_cast<const FSoftConInputDialog*>(&dialog)) {
        FIni().setValue(pathKey(), base);
        FIni().setValue(convertKey(), input->isConverting());
        keepFolders = input->isConverting() || input->areNonExistingAccepted();
        type = keepFolders ? FGenIntCommandFile::null() : type;
    } else {
        mConnector.setResultsPath(canonical(dialog.directory()));
    }
    FItemRequests::List requests;
    for (const QString& file : files) {
        // A path that was typed can lead anywhere: its folder is no part of the name then.
        requests +=
            FItemRequests::ofPaths({file}, FExpr<FObject>(type), isBelow(file, base) ? base : QString(), keepFolders);
    }
    mScene.createItems(requests);
}
