#pragma once

#include "host/core/FExport.h"
#include "host/lodm/FConfigurationCustom.h"
#include "host/run/FExternComputation.h"

/** A computation whose input comes from a configuration: base class for plug-ins. */
class MERIX_EXPORT FCustomComputation : public FClass<FCustomComputation, FExternComputation> {
 public:
    static FClassData mClass;

    explicit FCustomComputation(const QString& name = QString()) : FClass(name) {}

    const FExpr<FConfigurationCustom>& getConfiguration() const { return mConfiguration; }
    /**
     * The computation then depends on the configuration. Refused, with a message, if the configuration depends on the
     * computation.
     */
    void setConfiguration(const FExpr<FConfigurationCustom>& configuration);

    QList<FManaged*> getParts() const override;
    /**
     * Makes a set-up of its own for another run: a clone of the computation with a clone of its configuration. Both
     * configurations share the definition, so that templates and entries stay common; values and settings of the clones
     * are independent. The caller opens the undo step.
     * @return the new computation, in the model; null if the class of either object can't be cloned
     */
    FCustomComputation* cloneSetup() const;
    /**
     * Writes the whole set-up as an exchange file, which replaces an existing one in one step.
     * @param chain  with the set-ups of all computations that this one is linked with, see FComputationChain
     * @return false, with a message, if that isn't possible
     */
    virtual bool exportSetUp(const QString& path, bool chain) const;

    QString getResultFile(const QString& entry) const override;
    QMap<QString, QString> describeSetUp() const override;

 protected:
    using FExternComputation::init;
    void init(const FCustomComputation* other);

    bool copyInputFiles(const QString& folder) const override;
    bool doExports() const override;
    bool writeOutputFile() const override;
    void finalizeRun() const override;
    QStringList getReadFiles() const override;
    QMap<QString, QString> getWrittenValues() const override;
    QStringList getFurtherFiles() const override;

    FExpr<FConfigurationCustom> mConfiguration;

 private:
    static void declareCommands(FCmdTable& table);
    static std::vector<std::unique_ptr<FStateField>> fields();

    QString mCmdFile;  //!< in the folder of the run: gets a line "path = value" for each entry; empty for none
};
