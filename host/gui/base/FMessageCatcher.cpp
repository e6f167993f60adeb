#include "host/gui/base/FMessageCatcher.h"

#include "host/core/FChanges.h"
#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"

FMessageCatcher::FMessageCatcher() {
    connect(FChanges::instance(), &FChanges::messageLogged, this, [this](const FLogMsg& message) {
        if (mText.isEmpty() && message.kind != FLogMsg::Kind::Info) {
            const bool isComplete = message.consequence.isEmpty() || message.isForScripts;
            mText = isComplete ? message.message : QStringLiteral("%1. %2").arg(message.message, message.consequence);
        }
    });
}
