#pragma once

#include "genericintegration/setup/FConnectorRecord.h"
#include "host/design/FDefinition.h"

/** A connector for tests: records the calls, and may belong to a definition without a computation. */
class FFakeConnector : public FClass<FFakeConnector, FConnectorRecord> {
 public:
    static FClassData mClass;

    explicit FFakeConnector(FDefinition* definition = nullptr) : mpDefinition(definition) { setImediateUpdate(false); }

    FDefinition* getDefinition() const override { return mpDefinition; }
    void disableGui(bool disable) override { mCalls << (disable ? "lock" : "unlock"); }
    void showConnector() override { mCalls << "show"; }
    void refreshCommandFileEditors() override { ++mRefreshed; }

    int mRefreshed = 0;
    QStringList mCalls;

 private:
    FDefinition* mpDefinition;
};
