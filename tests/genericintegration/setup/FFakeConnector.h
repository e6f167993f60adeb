#pragma once

#include "host/core/FManaged.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FDefinition.h"
#include "host/run/FExternComputation.h"

/** A connector for tests: records the calls, and belongs to one definition or computation. */
class FFakeConnector : public FClass<FFakeConnector, FManaged>, public FConnectorInterface {
 public:
    static FClassData mClass;

    explicit FFakeConnector(FDefinition* definition = nullptr) : mpDefinition(definition) {}

    FExpr<FExternComputation> getComputation() const override { return mComputation; }
    void setComputation(const FExpr<FExternComputation>& computation) override { mComputation = computation; }
    bool containsComputation(const FExpr<FExternComputation>& computation) const override {
        return computation == mComputation;
    }
    FDefinition* getDefinition() const override { return mpDefinition; }
    void disableGui(bool disable) override { mCalls << (disable ? "lock" : "unlock"); }
    void showConnector() override { mCalls << "show"; }
    void refreshEditors(const FManaged* file) override { Q_UNUSED(file) }
    void refreshCommandFileEditors() override { ++mRefreshed; }
    FManaged* asManaged() override { return this; }
    FConnectorInterface* createConnector(const QString& name,
                                         const FExpr<FExternComputation>& computation) const override;

    int mRefreshed = 0;
    QStringList mCalls;

 private:
    FDefinition* mpDefinition;
    FExpr<FExternComputation> mComputation;
};
