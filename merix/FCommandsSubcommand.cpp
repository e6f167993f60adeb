#include "merix/FCommandsSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/script/FCmdReference.h"
#include "merix/FExitCode.h"

#include <iostream>

std::vector<FSubcommand::Argument> FCommandsSubcommand::arguments() {
    return {{"CLASS", "Only the commands on objects of this class; \"global\" for functions", &mClass},
            {"--json", "As JSON", &mJson}};
}

int FCommandsSubcommand::run() const {
    const QString className = QString::fromStdString(mClass);
    const FCmdReference reference(className);
    if (reference.isEmpty()) {
        FLogMsg::error(QStringLiteral("merix"), reference.unknownClass());
        return FExitCode::wrongCall;
    }
    std::cout << (mJson ? reference.toJson() : reference.toText()).toStdString();
    return FExitCode::done;
}
