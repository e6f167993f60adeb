#include "merix/FScriptSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/core/FPrototypes.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"

#include <CLI/CLI.hpp>
#include <QFile>

#include <cstdio>

namespace {

FExprBase textList(const std::vector<std::string>& texts) {
    auto* list = new FObjectList(FString::null());
    FExprBase handle(list);
    for (const std::string& text : texts) {
        list->add(FExpr<FObject>(new FString(QString::fromStdString(text))));
    }
    return handle;
}

}  // namespace

FScriptSubcommand::FScriptSubcommand(CLI::App& app)
    : mpCommand(app.add_subcommand("script", "Carries out a script; \"-\" reads it from the standard input.")) {
    mpCommand->add_option("FILE", mFile, "The script")->required();
    mpCommand->add_option("ARGUMENTS", mArguments, "What the script finds in the list \"arguments\"");
    mpCommand->positionals_at_end();
}

bool FScriptSubcommand::isChosen() const {
    return mpCommand->parsed();
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
    FPrototypes::buildPending();
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    FCmdInput input;
    input.setVariable(QStringLiteral("arguments"), textList(mArguments));
    input.readInputString(stream, isStandardInput ? QStringLiteral("standard input") : path);
    const bool done = input.exec();
    const int exitCode = done ? input.getExitCode() : FExitCode::failed;
    // What a script that ended well didn't save wasn't meant to be.
    FProject::instance()->close(exitCode != FExitCode::done);
    return exitCode;
}
