#pragma once

#include "host/core/FManaged.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FDefinition.h"
#include "host/run/FExternComputation.h"

/** Stands in for the base class of connectors, which is looked up by its name. */
class FFakeConnectorBase : public FClass<FFakeConnectorBase, FManaged> {
 public:
    static FClassData mClass;

    explicit FFakeConnectorBase(const QString& name = QString()) : FClass(name) {}
};

/** Stands in for the connector: notes what it is asked to do, and shows one definition or computation. */
class FFakeConnector : public FClass<FFakeConnector, FFakeConnectorBase>, public FConnectorInterface {
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
    void show() override { mCalls << "show"; }
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
