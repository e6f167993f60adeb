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

/** The prototypes of all classes. */
std::vector<const FImport*> allImports() {
    std::vector<const FImport*> imports;
    for (const QString& name : FPrototypes::getNames()) {
        if (const auto* prototype = dynamic_cast<const FImport*>(FPrototypes::find(name))) {
            imports.push_back(prototype);
        }
    }
    return imports;
}

void commands(FCmdTable& table) {
    table.member<FImport>("read", &FImport::read, {"fileName=\"\"", "flag=false"});
}

}  // namespace

FClassData FImport::mClass("FImport", &FManaged::mClass, &commands);

FExpr<FObjectList> FImport::read(const QString& fileName, bool flag) {
    QFile file;
    if (open(file, fileName)) {
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
    return FExpr<FObjectList>(new FObjectList);
}

std::unique_ptr<FImport> FImport::forFile(const QString& fileName) {
    const QString name = QFileInfo(fileName).fileName();
    for (const FImport* prototype : allImports()) {
        std::unique_ptr<FImport> import(QDir::match(patternsOf(prototype->mFilter), name) ? prototype->makeImport()
                                                                                          : nullptr);
        if (import) {
            import->setOwnedElsewhere();
            return import;
        }
    }
    return nullptr;
}

QStringList FImport::getFilters() {
    QStringList filters;
    for (const FImport* prototype : allImports()) {
        if (!prototype->mFilter.isEmpty()) {
            filters.append(prototype->mFilter);
        }
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
