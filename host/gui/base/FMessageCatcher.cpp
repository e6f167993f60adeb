#include "host/gui/base/FMessageCatcher.h"

#include "host/core/FChanges.h"
#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"

namespace {

/** What follows for a script means nothing to the user of a window. */
bool isOfScripts(const QString& consequence) {
    return consequence == QLatin1String("The result is NULL");
}

}  // namespace

FMessageCatcher::FMessageCatcher() {
    connect(FChanges::instance(), &FChanges::messageLogged, this, [this](const FLogMsg& message) {
        if (mText.isEmpty() && message.kind != FLogMsg::Kind::Info) {
            const bool isComplete = message.consequence.isEmpty() || isOfScripts(message.consequence);
            mText = isComplete ? message.message : QStringLiteral("%1. %2").arg(message.message, message.consequence);
        }
    });
}
