#pragma once

#include "host/lodm/FCustomComputation.h"

class FDefinitionGenInt;
class FGenIntCompSignalRapper;

/**
 * The computation of one integration: the template writer writes its input files, and its results are read through the
 * result templates. Connectors that show it are locked during a run.
 */
class FGenIntComputation : public FClass<FGenIntComputation, FCustomComputation> {
 public:
    static FClassData mClass;

    static FGenIntComputation* create(const QString& name);
    ~FGenIntComputation() override;

    const FObject* getResultType() const override;
    FExpr<FComputationResults> getResults() const override { return FCustomComputation::getResults(); }
    bool isGeneric() const override { return true; }
    QMap<QString, QString> describeSetUp() const override;
    std::vector<ReadingPart> getReadingParts() const override;
    bool exportSetUp(const QString& path, bool chain) const override;
    /** That of the configuration; null without one. */
    FDefinitionGenInt* definition() const;

    /** A new computation of this name with the program's settings, but without a configuration. */
    FObject* clone() const override;
    virtual void init(const FGenIntComputation* other);
    /** Renames, and reports it through the object manager unless a project is being loaded. */
    FManaged* setName(const QString& name) override;

    // Not overrides: the host's run doesn't call them.
    using FCustomComputation::finalizeRun;
    using FCustomComputation::prepareRun;
    virtual QString prepareRun() { return std::as_const(*this).prepareRun(); }
    virtual void finalizeRun() { std::as_const(*this).finalizeRun(); }

    virtual FGenIntCompSignalRapper* getSignalRapper() const { return mpSignalRapper.get(); }
    /** Shows the connector of this computation, and makes one if there is none. Without windows nothing is shown. */
    virtual void openSoftwareConnector() const;
    bool doubleClickedInTree() override;

 protected:
    explicit FGenIntComputation(const QString& name = QString());

    bool writeOutputFile() const override;
    QString getInputFault() const override;
    QString getFileNameFault() const override;
    void computationStarted() const override;
    void computationFinished() const override;
    void applyOutputHandles(FComputationResults* results) const override;
    void processReread(FComputationResults* results) override;
    void leaveModel() override;

 private:
    friend class FClass<FGenIntComputation, FCustomComputation>;

    void enableSoftCons(bool enable) const;

    std::unique_ptr<FGenIntCompSignalRapper> mpSignalRapper;
};
