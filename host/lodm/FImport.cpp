#include "host/lodm/FImport.h"

#include "host/core/FFile.h"
#include "host/core/FHold.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FPrototypes.h"
#include "host/core/FViewCtrl.h"
#include "host/lodm/FLodmPath.h"
#include "host/run/FPathManager.h"
#include "host/script/FCmdTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/** The patterns of a filter: "*.txt" and "*.log" of "Text (*.txt *.log)". */
QStringList patternsOf(const QString& filter) {
    return filter.section(QLatin1Char('('), -1).section(QLatin1Char(')'), 0, 0).split(QLatin1Char(' '));
}

void commands(FCmdTable& table) {
    table.member<FImport>("read", &FImport::read, {"fileName=\"\"", "flag=false"});
}

}  // namespace

FClassData FImport::mClass("FImport", &FManaged::mClass, &commands);

FExpr<FObjectList> FImport::read(const QString& fileName, bool flag) {
    QFile file;
    if (open(file, fileName)) {
        readOpen(file, flag);
    }
    return FExpr<FObjectList>(new FObjectList);
}

std::vector<std::unique_ptr<FImport>> FImport::makeAll() {
    std::vector<std::unique_ptr<FImport>> imports;
    for (const QString& name : FPrototypes::getNames()) {
        const auto* prototype = dynamic_cast<const FImport*>(FPrototypes::find(name));
        if (FImport* import = prototype ? prototype->makeImport() : nullptr) {
            import->setOwnedElsewhere();
            imports.emplace_back(import);
        }
    }
    return imports;
}

void FImport::readOpen(QFile& file, bool flag) {
    const FBusy busy;
    const FWaitCursor cursor;
    mFaultCount = 0;
    reset();
    const FGlUpdateBlocker picture;
    const FEditorUpdateBlocker editors;
    const FImmediateUpdateBlocker updates;
    const FObjectTreeBlocker tree;
    doImport(file, flag);
}

std::unique_ptr<FImport> FImport::forFile(const QString& fileName) {
    const QString name = QFileInfo(fileName).fileName();
    for (std::unique_ptr<FImport>& import : makeAll()) {
        if (QDir::match(patternsOf(import->mFilter), name)) {
            return std::move(import);
        }
    }
    return nullptr;
}

QStringList FImport::getFilters() {
    QStringList filters;
    for (const std::unique_ptr<FImport>& import : makeAll()) {
        filters.append(import->mFilter);
    }
    return filters;
}

QString FImport::getCurrentDir() const {
    return mCurrentDir.isEmpty() ? FPathManager::instance()->getSamplesDir() : mCurrentDir;
}

void FImport::doImport(QFile& file, bool flag) {
    Q_UNUSED(file)
    Q_UNUSED(flag)
}

bool FImport::open(QFile& file, const QString& fileName) {
    QString directory = getCurrentDir();
    const QString path = fileName.isEmpty() ? FViewCtrl::getOpenFileName(mCaption, directory, mFilter)
                                            : lodmPath(FFile::resolveEnv(fileName));
    file.setFileName(path);
    if (path.isEmpty() || !file.exists() || !FFile::openOrdinary(file).isEmpty()) {
        return false;
    }
    setCurrentDir(directory);
    return true;
}
