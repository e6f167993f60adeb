#pragma once

#include <QString>

class FLogMsg;

/** What a connector reports of files and geometry that it doesn't take, or not as expected. */
namespace FConnectorLog {

void info(const QString& message, const QString& consequence = QString());
/** That an item was to be made, and couldn't be. */
void failure(const QString& reason);
/** Whether a message is one of these. */
bool contains(const FLogMsg& message);

}  // namespace FConnectorLog
