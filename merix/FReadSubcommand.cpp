#include "merix/FReadSubcommand.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FStandardOutput.h"
#include "host/lodm/FCustomComputation.h"
#include "host/run/FResultFiles.h"
#include "host/run/FResultsGeneric.h"
#include "merix/FExitCode.h"
#include "merix/FTableOutput.h"

#include <QDir>
#include <QFile>

namespace {

QString pathOf(const QDir& folder) {
    return folder.path() + QLatin1Char('/');
}

/** Why a file can't be read; empty if it can. */
QString faultOf(const QDir& folder, const QString& name) {
    QFile file(folder.filePath(name));
    if (!file.exists()) {
        return QStringLiteral("there is no file \"%1\"").arg(file.fileName());
    }
    if (const QString fault = FFile::openOrdinary(file); !fault.isEmpty()) {
        return QStringLiteral("can't read \"%1\": %2").arg(file.fileName(), fault);
    }
    const QString unreadable = FResultFiles(pathOf(folder), {name}).unreadable();
    return unreadable.isEmpty() ? QString() : QStringLiteral("%1 can't be read").arg(unreadable);
}

}  // namespace

std::vector<FSubcommand::Argument> FReadSubcommand::arguments() {
    return {mTarget.projectArgument(),
            {"--dir DIR", "The folder with the output files", &mFolder, true},
            {"--csv", "As CSV", &mCsv},
            {"--json", "As JSON", &mJson},
            {"--explain", "With the place and text that each value comes from", &mExplain},
            mTarget.computationArgument()};
}

int FReadSubcommand::run() const {
    const QDir folder(QDir(QString::fromStdString(mFolder)).absolutePath());
    if (!folder.exists()) {
        FLogMsg::error(QStringLiteral("merix"), QStringLiteral("there is no folder \"%1\"").arg(folder.path()),
                       QStringLiteral("Give the folder of the output files with --dir"));
        return FExitCode::fileError;
    }
    const int exitCode = mTarget.open(FSetUpTarget::Access::Read);
    if (exitCode != FExitCode::done) {
        return exitCode;
    }
    const FExpr<FComputationResults> results = mTarget.computation()->readFolder(pathOf(folder));
    auto* read = dynamic_cast<FResultsGeneric*>(results.ptr());
    const bool isWhole = hasFiles(folder);
    if (!read || !read->prepareResults()) {
        FLogMsg::error(
            QStringLiteral("merix"),
            QStringLiteral("nothing is read from \"%1\", since a run there is in progress").arg(folder.path()),
            QStringLiteral("Read it when the run has ended"));
        return FExitCode::failed;
    }
    using Form = FTableOutput::Form;
    const Form form = mJson ? Form::Json : mCsv ? Form::Csv : mExplain ? Form::Explained : Form::Text;
    FStandardOutput::write(FTableOutput::of(*read, form));
    return isWhole ? FExitCode::done : FExitCode::failed;
}

/** Whether all files that values are read from are there; reports those that aren't. */
bool FReadSubcommand::hasFiles(const QDir& folder) const {
    const FConfigurationCustom* configuration = mTarget.computation()->getConfiguration().ptr();
    const FDefinition* definition = configuration ? configuration->getDefinition().ptr() : nullptr;
    const QStringList names = definition ? definition->getReadFiles() : QStringList();
    bool hasAll = true;
    for (const QString& name : names) {
        if (const QString fault = faultOf(folder, name); !fault.isEmpty()) {
            FLogMsg::error(QStringLiteral("merix"), fault, QStringLiteral("Its values are NaN"));
            hasAll = false;
        }
    }
    if (const QString empty = FResultFiles(pathOf(folder), names).empty(); !empty.isEmpty()) {
        FLogMsg::warning(QStringLiteral("merix"), QStringLiteral("nothing is in %1").arg(empty),
                         QStringLiteral("Its values are NaN"));
    }
    return hasAll;
}
