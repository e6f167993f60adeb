#include "host/lodm/FDefinitionCustom.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/lodm/FLodmDefinitionParser.h"
#include "host/lodm/FLodmLeftOut.h"
#include "host/script/FCmdTable.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

bool cantSave(const FDefinitionCustom& definition, const QString& reason) {
    const QString& name = definition.getSaveFileName();
    FLogMsg::error(definition.getName(),
                   QStringLiteral("the definition can't be saved in \"%1\": %2").arg(name, reason),
                   QFileInfo::exists(name) ? QStringLiteral("what is there is unchanged") : QString());
    return false;
}

// Says what save() leaves to its caller.
bool saveAs(FDefinitionCustom& definition, const QString& fileName) {
    if (!fileName.isEmpty()) {
        definition.setSaveFileName(FFile::resolveEnv(fileName));
    }
    if (definition.getSaveFileName().isEmpty()) {
        FLogMsg::error(definition.getName(), QStringLiteral("the definition has no file to be saved in"),
                       QStringLiteral("name one: save(\"%1.lodm\")").arg(definition.getName()));
        return false;
    }
    QFile file;
    if (!definition.openSaveFile(file)) {
        return cantSave(definition, file.errorString());
    }
    const bool isWritten = definition.save({}, file);
    return definition.closeSaveFile(file, isWritten);
}

void commands(FCmdTable& table) {
    table.member<FDefinitionCustom>("save", &saveAs, {"fileName=\"\""});
}

/** The file itself where the name is that of a link to it. */
QString realPath(const QString& name) {
    const QString path = QFileInfo(name).canonicalFilePath();
    return path.isEmpty() ? QFileInfo(name).absoluteFilePath() : path;
}

/** What kept the file from taking all; empty if nothing did. Closing it may forget that. */
QString writeFault(QFile& file, bool isWritten) {
    if (file.flush() && isWritten) {
        return {};
    }
    return file.error() == QFileDevice::NoError ? QStringLiteral("not all of it could be written; is the disk full?")
                                                : file.errorString();
}

QString moveOver(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(std::filesystem::path(from.toStdU16String()), std::filesystem::path(to.toStdU16String()),
                            error);
    return error ? QString::fromStdString(error.message()) : QString();
}

}  // namespace

FClassData FDefinitionCustom::mClass("FDefinitionCustom", &FDefinitionCustomBase::mClass, &commands);

bool FDefinitionCustom::openSaveFile(QFile& file) const {
    if (mSaveFileName.isEmpty()) {
        return false;
    }
    const QString name = realPath(mSaveFileName) + QStringLiteral(".part");
    // What is left of that name may be a link to another file.
    QFile::remove(name);
    file.setFileName(name);
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

bool FDefinitionCustom::closeSaveFile(QFile& file, bool isWritten) const {
    const QString path = realPath(mSaveFileName);
    QString reason = writeFault(file, isWritten);
    file.close();
    if (reason.isEmpty()) {
        if (QFileInfo::exists(path)) {
            file.setPermissions(QFile::permissions(path));
        }
        reason = moveOver(file.fileName(), path);
    }
    if (reason.isEmpty()) {
        return true;
    }
    file.remove();
    return cantSave(*this, reason);
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
    warnOfLeftOut(*this, {});
    const bool isWritten = FLodmDefinitionParser().write(&file, this);
    return opens ? closeSaveFile(file, isWritten) : isWritten && file.flush();
}
