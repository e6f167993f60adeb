#include "host/lodm/FImport.h"

#include "host/core/FFile.h"
#include "host/core/FHold.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FViewCtrl.h"
#include "host/lodm/FLodmPath.h"
#include "host/run/FPathManager.h"
#include "host/script/FCmdTable.h"

#include <QFile>

namespace {

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
        reset();
        const FGlUpdateBlocker picture;
        const FEditorUpdateBlocker editors;
        const FImmediateUpdateBlocker updates;
        const FObjectTreeBlocker tree;
        doImport(file, flag);
    }
    return FExpr<FObjectList>(new FObjectList);
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
