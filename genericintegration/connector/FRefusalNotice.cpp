#include "genericintegration/connector/FRefusalNotice.h"

#include "genericintegration/connector/layout/FConnectorLog.h"
#include "host/core/FChanges.h"
#include "host/core/FUserInterface.h"
#include "host/gui/panels/FLogModel.h"

FRefusalNotice::FRefusalNotice() {
    connect(FChanges::instance(), &FChanges::messageLogged, this, [this](const FLogMsg& message) {
        if (FConnectorLog::contains(message)) {
            mTexts.append(FLogModel::textOf(message));
        }
    });
}

FRefusalNotice::~FRefusalNotice() {
    constexpr int most = 3;
    const int further = mTexts.size() - most;
    QString text = mTexts.mid(0, most).join(QLatin1Char('\n'));
    if (further > 0) {
        text += QStringLiteral("\n%1 more: see the Log").arg(further);
    }
    if (!text.isEmpty()) {
        FUserInterface::instance()->tell(QString(), text);
    }
}
