#pragma once

#include "genericintegration/setup/FConnectorSetUp.h"
#include "host/core/FString.h"
#include "host/core/FView.h"

/**
 * The software connector of a program without windows. Scripts and projects know it as "FSoftwareConnector". It saves
 * and changes the same as one with a window, so that a project keeps its connectors when a batch opens, runs and saves
 * it; what concerns only the window does nothing.
 */
class FConnectorRecord : public FClass<FConnectorRecord, FView>, public FConnectorInterface {
 public:
    static FClassData mClass;

    explicit FConnectorRecord(const QString& name = QString());
    /** Makes a connector in the model; see FConnectorSetUp::start for the computation. */
    static FConnectorRecord* create(const QString& name, const FExpr<FExternComputation>& computation);

    /** Without a window there is no dialog: null, and a message. */
    static FExpr<FString> chooseResultsFile();

    FConnectorSetUp& setUp() { return mSetUp; }

    FExpr<FExternComputation> getComputation() const override { return mSetUp.mComputation; }
    void setComputation(const FExpr<FExternComputation>& computation) override { mSetUp.setComputation(computation); }
    bool containsComputation(const FExpr<FExternComputation>& computation) const override {
        return mSetUp.containsComputation(computation);
    }
    FDefinition* getDefinition() const override { return mSetUp.getDefinition(); }
    void disableGui(bool disable) override { Q_UNUSED(disable) }
    void showConnector() override {}
    void refreshEditors(const FManaged* file) override { Q_UNUSED(file) }
    void refreshCommandFileEditors() override {}
    FManaged* asManaged() override { return this; }
    QList<FManaged*> getParts() const override;
    FConnectorInterface* createConnector(const QString& name,
                                         const FExpr<FExternComputation>& computation) const override {
        return create(name, computation);
    }

    bool doUpdate() const override;

 protected:
    /** There is nothing to compute: what the connector depends on is only looked at. */
    bool updatesSuppliersItself() const override { return true; }
    void leaveModel() override;

 private:
    mutable FConnectorSetUp mSetUp;  //!< an update may add what is missing
};
