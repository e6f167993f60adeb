#pragma once

#include "host/core/FManaged.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FDefinition.h"
#include "host/run/FExternComputation.h"

/** Stands in for the connector: counts what it is asked to do, and shows one definition. */
class FFakeConnector : public FClass<FFakeConnector, FManaged>, public FConnectorInterface {
 public:
    static FClassData mClass;

    explicit FFakeConnector(FDefinition* definition = nullptr) : mpDefinition(definition) {}

    FExpr<FExternComputation> getComputation() const override { return {}; }
    void setComputation(const FExpr<FExternComputation>& computation) override { Q_UNUSED(computation) }
    bool containsComputation(const FExpr<FExternComputation>& computation) const override { return !computation; }
    FDefinition* getDefinition() const override { return mpDefinition; }
    void disableGui(bool disable) override { Q_UNUSED(disable) }
    void show() override {}
    void refreshEditors(const FManaged* file) override { Q_UNUSED(file) }
    void refreshCommandFileEditors() override { ++mRefreshed; }
    FManaged* asManaged() override { return this; }
    FConnectorInterface* createConnector(const QString& name,
                                         const FExpr<FExternComputation>& computation) const override;

    int mRefreshed = 0;

 private:
    FDefinition* mpDefinition;
};
