#include "host/lodm/FDefinitionCustom.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSavedFile.h"
#include "host/core/FSavingFile.h"
#include "host/core/FViewCtrl.h"
#include "host/lodm/FLodmDefinitionParser.h"
#include "host/lodm/FLodmLeftOut.h"
#include "host/lodm/FLodmPath.h"
#include "host/script/FCmdTable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool cantSave(const FDefinitionCustom& definition, const QString& reason) {
    const QString& name = definition.getSaveFileName();
    FLogMsg::error(definition.getName(),
                   QStringLiteral("the definition can't be saved in \"%1\": %2").arg(name, reason),
                   QFileInfo::exists(name) ? QStringLiteral("what is there is unchanged") : QString());
    return false;
}

QString askForFile(const QString& name) {
    const QDir folder = QFileInfo(FMerixCtrl::instance()->getProjectFile()).dir();
    return FViewCtrl::getSaveFileName(QStringLiteral("Save LODM File"), folder.filePath(name + QStringLiteral(".lodm")),
                                      QStringLiteral("LODM Files (*.lodm)"));
}

// The command. It reports what save() leaves to its caller.
bool saveAs(FDefinitionCustom& definition, const QString& fileName) {
    if (!fileName.isEmpty()) {
        definition.setSaveFileName(lodmPath(FFile::resolveEnv(fileName)));
    }
    if (definition.getSaveFileName().isEmpty() && !FViewCtrl::instance()->hasGui()) {
        FLogMsg::error(definition.getName(), QStringLiteral("the definition has no file to be saved in"),
                       QStringLiteral("Name one: save(\"%1.lodm\")").arg(definition.getName()));
        return false;
    }
    if (FMerixCtrl::instance()->isReadOnly()) {
        return true;
    }
    QFile file;
    if (!definition.openSaveFile(file)) {
        // Without a name, the user has cancelled.
        return !definition.getSaveFileName().isEmpty() && cantSave(definition, file.errorString());
    }
    const bool isWritten = definition.save({}, file);
    return definition.closeSaveFile(file, isWritten);
}

void commands(FCmdTable& table) {
    table.member<FDefinitionCustom>("save", &saveAs, {"fileName=\"\""}).outcome();
}

}  // namespace

FClassData FDefinitionCustom::mClass("FDefinitionCustom", &FDefinitionCustomBase::mClass, &commands);

bool FDefinitionCustom::openSaveFile(QFile& file) const {
    if (mSaveFileName.isEmpty() && FViewCtrl::instance()->hasGui()) {
        mSaveFileName = askForFile(getName());
    }
    if (mSaveFileName.isEmpty()) {
        return false;
    }
    return FSavingFile::open(file, FFile::realPath(mSaveFileName));
}

bool FDefinitionCustom::closeSaveFile(QFile& file, bool isWritten) const {
    const QString reason = FSavedFile::take(file, mSaveFileName, isWritten);
    return reason.isEmpty() || cantSave(*this, reason);
}

bool FDefinitionCustom::save() const {
    QFile file;
    return save({}, file);
}

bool FDefinitionCustom::save(const QSet<FExpr<FManaged>>& objects, QFile& file) const {
    Q_UNUSED(objects)
    const bool opens = !file.isOpen();
    if (opens && !openSaveFile(file)) {
        return false;
    }
    warnOfLeftOut(*this, {}, {});
    const bool isWritten = FLodmDefinitionParser().write(&file, this);
    return opens ? closeSaveFile(file, isWritten) : isWritten && file.flush();
}
