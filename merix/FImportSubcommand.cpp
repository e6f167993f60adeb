#include "merix/FImportSubcommand.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/lodm/FImport.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"
#include "merix/FSetUpTarget.h"

#include <QFile>
#include <QFileInfo>

std::vector<FSubcommand::Argument> FImportSubcommand::arguments() {
    return {{"FILE", "The file, such as one that merix export has written", &mFile, true},
            {"--into PROJECT", "The project; it is created if it doesn't exist", &mProject, true}};
}

int FImportSubcommand::run() const {
    const QString project = FProject::withEnding(QString::fromStdString(mProject));
    const int exitCode = importInto(project);
    FProject::instance()->close(false);
    return exitCode;
}

int FImportSubcommand::importInto(const QString& project) const {
    const QString source = QStringLiteral("merix");
    const QString path = QFileInfo(QString::fromStdString(mFile)).absoluteFilePath();
    QFile file(path);
    if (const QString fault = FFile::openOrdinary(file); !fault.isEmpty()) {
        FLogMsg::error(source, QStringLiteral("\"%1\" can't be imported: %2").arg(path, fault));
        return FExitCode::fileError;
    }
    const int opened =
        QFileInfo::exists(project) ? FSetUpTarget::openProject(project, FSetUpTarget::Access::Run) : FExitCode::done;
    if (opened != FExitCode::done) {
        return opened;
    }
    const std::unique_ptr<FImport> import = FImport::forFile(path);
    if (!import) {
        FLogMsg::error(source, QStringLiteral("nothing imports files such as \"%1\"").arg(path),
                       QStringLiteral("Known kinds: %1").arg(FImport::getFilters().join(QStringLiteral(", "))));
        return FExitCode::wrongCall;
    }
    const auto countObjects = [] { return FObjectManager::instance()->getManaged(FManaged::null()).size(); };
    const auto before = countObjects();
    import->readOpen(file, false);
    if (import->getFaultCount() == 0 && countObjects() == before) {
        FLogMsg::error(source, QStringLiteral("\"%1\" has no set-up").arg(path), QStringLiteral("Nothing was saved"));
        return FExitCode::failed;
    }
    if (import->getFaultCount() > 0) {
        FLogMsg::error(source, QStringLiteral("\"%1\" can't be imported whole").arg(path),
                       QStringLiteral("Nothing was saved; an import in a script keeps what could be read"));
        return FExitCode::failed;
    }
    return FProject::instance()->save(project) ? FExitCode::done : FExitCode::fileError;
}
