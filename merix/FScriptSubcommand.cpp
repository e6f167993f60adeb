#include "merix/FScriptSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/core/FPrototypes.h"
#include "host/run/FInterruptLine.h"
#include "host/run/FRunTally.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"
#include "merix/textList.h"

namespace {

QString failedText(const QString& command, int count) {
    const bool isRun = command == QLatin1String("run");
    const QString what = isRun ? QStringLiteral("run") : QStringLiteral("call");
    const QString counted = QStringLiteral("%1 %2").arg(QString::number(count), what + (count == 1 ? "" : "s"));
    return isRun ? counted : QStringLiteral("%1 of %2()").arg(counted, command);
}

// Otherwise a batch job would look as if it had succeeded.
bool reportIgnoredFailures(const FCmdInput& input, const QString& script) {
    const QMap<QString, int>& failures = input.getIgnoredFailures();
    for (auto failure = failures.begin(); failure != failures.end(); ++failure) {
        const QString& command = failure.key();
        const bool isRun = command == QLatin1String("run");
        FLogMsg::error(script,
                       QStringLiteral("%1 failed, and the script didn't use the result of %2()")
                           .arg(failedText(command, failure.value()), command),
                       QStringLiteral("Use it, as in \"if (!%1) { ... }\", or end the script with exit(0)")
                           .arg(isRun ? QStringLiteral("solver.run()") : command + QStringLiteral("(...)")));
    }
    return !failures.isEmpty();
}

}  // namespace

std::vector<FSubcommand::Argument> FScriptSubcommand::arguments() {
    return {{"FILE", "The script", &mFile, true},
            {"ARGUMENTS", "Available to the script as the list \"arguments\"", &mArguments},
            {"--strict", "Each warning is an error; must precede FILE", &mStrict}};
}

int FScriptSubcommand::run() const {
    const QString path = QString::fromStdString(mFile);
    FPrototypes::buildPending();
    FCmdInput input;
    if (const QString fault = input.readFile(path); !fault.isEmpty()) {
        FLogMsg::error(QStringLiteral("merix"), QStringLiteral("can't read the script \"%1\": %2").arg(path, fault));
        return FExitCode::fileError;
    }
    FLogMsg::setStrict(mStrict);
    input.setVariable(QStringLiteral("arguments"), textList(mArguments));
    FInterruptLine::install();
    const FInterruptLine interruptLine(path, QStringLiteral("Interrupted while no run was in progress"), QString());
    const bool done = input.exec();
    if (const QString tally = FRunTally::text(); !tally.isEmpty()) {
        FLogMsg::info(path, tally, QStringLiteral("The messages before give the reasons"));
    }
    const int exitCode = done ? input.getExitCode() : FExitCode::failed;
    // If the script succeeded, it left unsaved work unsaved on purpose.
    FProject::instance()->close(exitCode != FExitCode::done);
    if (exitCode != FExitCode::done || input.isExiting()) {
        return exitCode == FExitCode::done && FLogMsg::getStrictErrors() > 0 ? FExitCode::failed : exitCode;
    }
    return reportIgnoredFailures(input, path) || FLogMsg::getStrictErrors() > 0 ? FExitCode::failed : FExitCode::done;
}
