#include "genericintegration/setup/FConnectorRecord.h"

#include "genericintegration/setup/FConnectorCommands.h"
#include "host/core/FLogMsg.h"

FClassData FConnectorRecord::mClass("FSoftwareConnector", &FView::mClass, &connectorCommands<FConnectorRecord>,
                                    &connectorFields<FConnectorRecord>);

FConnectorRecord::FConnectorRecord(const QString& name) : FClass(name), mSetUp(*this) {
    setImediateUpdate(!isInitializingPrototype());
}

FConnectorRecord* FConnectorRecord::create(const QString& name, const FExpr<FExternComputation>& computation) {
    auto* connector = new FConnectorRecord(name);
    connector->mSetUp.start(computation);
    connector->registerObject();
    return connector;
}

FExpr<FString> FConnectorRecord::chooseResultsFile() {
    FLogMsg::info(QStringLiteral("chooseResultsFile"),
                  QStringLiteral("a result file of another connector can be chosen only in a window"),
                  QStringLiteral("Name it with getResults().getResultFileName() of its computation instead"));
    return {};
}

QList<FManaged*> FConnectorRecord::getParts() const {
    FManaged* computation = mSetUp.mComputation.ptr();
    return computation ? QList<FManaged*>{computation} : QList<FManaged*>();
}

bool FConnectorRecord::doUpdate() const {
    mSetUp.follow();
    return FView::doUpdate();
}

void FConnectorRecord::leaveModel() {
    mSetUp.destroyAll();
    FView::leaveModel();
}
