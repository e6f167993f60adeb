#pragma once

#include "genericintegration/templates/FGenIntFile.h"
#include "host/run/FResultsGeneric.h"

/**
 * The results of one run of an integration: a table for each result template, read at the first access. The
 * numbers without a table's name are those of the first table.
 */
class FResultsGenInt : public FClass<FResultsGenInt, FResultsGeneric> {
 public:
    static FClassData mClass;

    /** For results of a saved project; the number is that of their computation. */
    static FResultsGenInt* create(const QString& name, const FExpr<FDesign>& variant, int computationId);
    FComputationResults* createResults(const FExpr<FDesign>& variant,
                                       const FExpr<FExternComputation>& computation) const override;
    virtual void init(const FResultsGenInt* other);

    /** The result templates: the definition's own objects. The files are then read again at the next access. */
    virtual void setOutputHandles(const QList<FExpr<FGenIntFile>>& files);
    virtual const QList<FExpr<FGenIntFile>>& getOutputHandles() const { return mOutputHandles; }

    // ---- numbers of the first table; NaN for what isn't there ----
    double getDataAt(unsigned int row, unsigned int column) const;
    double getDataAt(const QString& rowHeader, unsigned int column) const;
    /** The row is truncated. */
    double getDataAt(double row, const QString& columnHeader) const;
    double getDataAt(const QString& rowHeader, const QString& columnHeader) const;
    double getLastDataOfRow(int row) const;
    double getLastDataOfColumn(int column) const;
    double getAverageOfLastRows(int numberOfRows, int column) const;

    /** The table of that name, otherwise that of the result template of that name in any case. */
    FExpr<FTableData> getData(const QString& name) override;
    /** Path of a file in the results' folder; empty if it isn't the file of a result template, or
     *  if the files of the run are gone. */
    QString getResultTemplateName(const QString& fileName) const;

    /** Only results of a design are saved, and only those of the last run in its folder. */
    void saveScopeManner(QTextStream& stream, unsigned int indent, bool inScope, bool flag) const override;

 protected:
    FResultsGenInt() = default;
    FResultsGenInt(const QString& name, const FExpr<FDesign>& variant, const FExpr<FExternComputation>& computation)
        : FClass(name, variant, computation) {}
    FResultsGenInt(const QString& name, const FExpr<FDesign>& variant, int computationId)
        : FClass(name, variant, computationId) {}

    void readOutputFiles() const override;
    QStringList valueNamesOf(int number) const override;

 private:
    friend class FClass<FResultsGenInt, FResultsGeneric>;

    static std::vector<std::unique_ptr<FStateField>> fields();
    FResultsGenInt* enter();
    template <class Ask>
    double ask(Ask question) const;

    QList<FExpr<FGenIntFile>> mOutputHandles;
};
