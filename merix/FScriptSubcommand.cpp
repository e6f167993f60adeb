#include "merix/FScriptSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/core/FPrototypes.h"
#include "host/run/FInterruptLine.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"
#include "host/script/FScriptParser.h"
#include "merix/FExitCode.h"
#include "merix/textList.h"

#include <QFile>

#include <cstdio>

namespace {

// Otherwise a batch job would look as if it had succeeded.
bool reportIgnoredFailures(const FCmdInput& input, const QString& script) {
    const int count = input.getIgnoredFailures();
    if (count > 0) {
        FLogMsg::error(script,
                       QStringLiteral("%1 failed, and the script didn't use the result of run()")
                           .arg(count == 1 ? QStringLiteral("1 run") : QStringLiteral("%1 runs").arg(count)),
                       QStringLiteral("Use it, as in \"if (!solver.run()) { ... }\", or end the script with exit(0)"));
    }
    return count > 0;
}

}  // namespace

std::vector<FSubcommand::Argument> FScriptSubcommand::arguments() {
    return {{"FILE", "The script", &mFile, true},
            {"ARGUMENTS", "Available to the script as the list \"arguments\"", &mArguments},
            {"--strict", "Each warning is an error; must precede FILE", &mStrict}};
}

int FScriptSubcommand::run() const {
    const QString path = QString::fromStdString(mFile);
    const bool isStandardInput = path == QLatin1String("-");
    QFile file(path);
    if (!(isStandardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly))) {
        FLogMsg::error(QStringLiteral("merix"),
                       QStringLiteral("can't read the script \"%1\": %2").arg(path, file.errorString()));
        return FExitCode::fileError;
    }
    FLogMsg::setStrict(mStrict);
    FPrototypes::buildPending();
    if (file.size() > longestScript) {
        FLogMsg::error(QStringLiteral("merix"),
                       QStringLiteral("can't read the script \"%1\": it has %2 bytes, and at most %3 can be read")
                           .arg(path)
                           .arg(file.size())
                           .arg(longestScript));
        return FExitCode::fileError;
    }
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    FCmdInput input;
    input.setVariable(QStringLiteral("arguments"), textList(mArguments));
    input.readInputString(stream, isStandardInput ? QStringLiteral("standard input") : path);
    FInterruptLine::install();
    const FInterruptLine interruptLine(path, QStringLiteral("Interrupted while no run was in progress"), QString());
    const bool done = input.exec();
    const int exitCode = done ? input.getExitCode() : FExitCode::failed;
    // If the script succeeded, it left unsaved work unsaved on purpose.
    FProject::instance()->close(exitCode != FExitCode::done);
    if (exitCode != FExitCode::done || input.isExiting()) {
        return exitCode == FExitCode::done && FLogMsg::getStrictErrors() > 0 ? FExitCode::failed : exitCode;
    }
    return reportIgnoredFailures(input, path) || FLogMsg::getStrictErrors() > 0 ? FExitCode::failed : FExitCode::done;
}
