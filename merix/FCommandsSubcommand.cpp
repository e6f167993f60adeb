#include "merix/FCommandsSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/core/FStandardOutput.h"
#include "host/script/FCmdReference.h"
#include "merix/FExitCode.h"

std::vector<FSubcommand::Argument> FCommandsSubcommand::arguments() {
    return {{"NAME", "The commands on objects of this class, or of this name; \"global\" for functions", &mName},
            {"--full", "All commands with their descriptions, instead of one line each", &mFull},
            {"--json", "As JSON", &mJson}};
}

int FCommandsSubcommand::run() const {
    const QString name = QString::fromStdString(mName);
    const FCmdReference reference(name);
    if (reference.isEmpty()) {
        FLogMsg::error(QStringLiteral("merix"), reference.unknownName());
        return FExitCode::wrongCall;
    }
    const bool isShort = name.isEmpty() && !mFull;
    const QString text = mJson ? reference.toJson() : isShort ? reference.toShortText() : reference.toText();
    return FStandardOutput::write(text) ? FExitCode::done : FExitCode::fileError;
}
