#include "genericintegration/setup/FConnectorCommands.h"

#include "host/core/FLogMsg.h"

FExpr<FString> chooseResultsFile() {
    FLogMsg::info(QStringLiteral("chooseResultsFile"),
                  QStringLiteral("a result file of another connector can be chosen only in a window"),
                  QStringLiteral("Name it with getResults().getResultFileName() of its computation instead"));
    return {};
}
