#include "genericintegration/connector/layout/FConnectorLog.h"

#include "host/core/FLogMsg.h"

namespace {

const QLatin1String source("SoftwareConnector");
const QLatin1String sourceOfFailures("FSoftConScene");

}  // namespace

void FConnectorLog::info(const QString& message, const QString& consequence) {
    FLogMsg::info(source, message, consequence);
}

void FConnectorLog::failure(const QString& reason) {
    FLogMsg::info(sourceOfFailures, QStringLiteral("Error, failed to add item to software connector."), reason);
}

bool FConnectorLog::contains(const FLogMsg& message) {
    return message.source == source || message.source == sourceOfFailures;
}
