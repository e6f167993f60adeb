#include "genericintegration/setup/FResultsGenInt.h"

#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/run/FTableCommands.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

#include <limits>

namespace {

QString savedArguments(const FObject* object) {
    const auto& results = dynamic_cast<const FResultsGenInt&>(*object);
    return results.getVariant().toString() + QLatin1Char(',') + QString::number(results.getComputationId());
}

// The numbers without a table's name are those of the first table.
template <class Check>
void checkFirst(const FResultsGenInt& results, Check check) {
    if (const FExpr<FTableData> table = results.getTableAt(0)) {
        check(*table.ptr());
    }
}

double dataAt(const FResultsGenInt& results, const QString& row, unsigned int column) {
    checkFirst(results, [&](const FTableData& table) {
        if (FTableCommands::checkRow(table, row)) {
            FTableCommands::checkPlace(table, table.findRow(row), column);
        }
    });
    return results.getDataAt(row, column);
}

double dataAtNames(const FResultsGenInt& results, const QString& row, const QString& column) {
    checkFirst(results, [&](const FTableData& table) {
        FTableCommands::checkRow(table, row);
        FTableCommands::checkColumn(table, column);
    });
    return results.getDataAt(row, column);
}

double dataAtColumn(const FResultsGenInt& results, double row, const QString& column) {
    checkFirst(results, [&](const FTableData& table) { FTableCommands::checkColumn(table, column); });
    return results.getDataAt(row, column);
}

double dataAtNumbers(const FResultsGenInt& results, unsigned int row, unsigned int column) {
    checkFirst(results, [&](const FTableData& table) { FTableCommands::checkPlace(table, row, column); });
    return results.getDataAt(row, column);
}

double lastOfRow(const FResultsGenInt& results, int row) {
    checkFirst(results, [&](const FTableData& table) { FTableCommands::checkPlace(table, row, 0); });
    return results.getLastDataOfRow(row);
}

double lastOfColumn(const FResultsGenInt& results, int column) {
    checkFirst(results, [&](const FTableData& table) { FTableCommands::checkColumn(table, column); });
    return results.getLastDataOfColumn(column);
}

double averageOfLast(const FResultsGenInt& results, int numberOfRows, int column) {
    checkFirst(results, [&](const FTableData& table) {
        if (numberOfRows < 1) {
            FCmd::warnNow(table.getName(),
                          QStringLiteral("getAverageOfLastRows: %1 rows have no mean").arg(numberOfRows),
                          QStringLiteral("The result is NaN; give a number from 1"));
        } else if (FTableCommands::checkColumn(table, column) && numberOfRows > table.getRowCount()) {
            FCmd::warnNow(
                table.getName(),
                QStringLiteral("%1 has %2 rows instead of %3")
                    .arg(table.getName(), QString::number(table.getRowCount()), QString::number(numberOfRows)),
                QStringLiteral("The result is the mean of all rows"));
        }
    });
    return results.getAverageOfLastRows(numberOfRows, column);
}

void dataCommands(FCmdTable& table) {
    using F = FResultsGenInt;
    const char* const name = "getDataAt";
    table.member<F>(name, &dataAtNumbers, {"row", "column"}).readsFiles();
    table.member<F>(name, &dataAt, {"row header", "column"}).readsFiles();
    table.member<F>(name, &dataAtColumn, {"row", "column header"}).readsFiles();
    table.member<F>(name, &dataAtNames, {"row header", "column header"}).readsFiles();
    table.member<F>("getLastDataOfRow", &lastOfRow, {"row=0"}).readsFiles();
    table.member<F>("getLastDataOfColumn", &lastOfColumn, {"column=0"}).readsFiles();
    table.member<F>("getAverageOfLastRows", &averageOfLast, {"numberOfRows", "column=0"}).readsFiles();
}

void commands(FCmdTable& table) {
    using F = FResultsGenInt;
    table
        .creator("genericIntegrationResults",
                 +[](const FNewName& name, const FExpr<FDesign>& variant, int computationId) {
                     return F::create(name.name, variant, computationId);
                 },
                 {"variant=NULL", "computationId=0"})
        .savedArguments(&savedArguments);
    table.attribute<F>("setOutputHandles", &F::setOutputHandles, &F::getOutputHandles, {"files"})
        .attrName("Output Handles")
        .readOnly()
        .data();
    dataCommands(table);
    table.member<F>("getResultTemplateName", &F::getResultTemplateName, {"fileName"}).query();
}

}  // namespace

FClassData FResultsGenInt::mClass("FResultsGenInt", &FResultsGeneric::mClass, &commands, &FResultsGenInt::fields, 2);

std::vector<std::unique_ptr<FStateField>> FResultsGenInt::fields() {
    return FStateFields<FResultsGenInt>().linked(&FResultsGenInt::mOutputHandles).take();
}

FResultsGenInt* FResultsGenInt::create(const QString& name, const FExpr<FDesign>& variant, int computationId) {
    return (new FResultsGenInt(name, variant, computationId))->enter();
}

FComputationResults* FResultsGenInt::createResults(const FExpr<FDesign>& variant,
                                                   const FExpr<FExternComputation>& computation) const {
    return (new FResultsGenInt(QString(), variant, computation))->enter();
}

FResultsGenInt* FResultsGenInt::enter() {
    registerObject();
    FResults::init();
    return this;
}

void FResultsGenInt::init(const FResultsGenInt* other) {
    if (other) {
        FResultsGeneric::init(other);
        setOutputHandles(other->getOutputHandles());
    }
}

void FResultsGenInt::setOutputHandles(const QList<FExpr<FGenIntFile>>& files) {
    recordChange();
    for (const FExpr<FGenIntFile>& file : qAsConst(mOutputHandles)) {
        file.unregisterClient(this);
    }
    mOutputHandles = files;
    for (const FExpr<FGenIntFile>& file : qAsConst(mOutputHandles)) {
        file.registerClient(this, false);
    }
    forgetReading();
    setOutOfDate(true);
}

void FResultsGenInt::readOutputFiles() const {
    startParentReg(this);
    QList<FExpr<FTableData>> zones;
    for (const FExpr<FGenIntResultsFile>& file : FGenIntResultsFile::among(mOutputHandles)) {
        FGenIntReader* reader = FGenIntReader::instance();
        reader->readResults(file, FExpr<FResultsGeneric>(this), getResultPath());
        const auto& imported = reader->getImportedObjects();
        for (auto object = imported.begin(); object != imported.end(); ++object) {
            mImportedObjects.insert(object.key(), object.value());
        }
        zones += reader->getImportedZones();
    }
    for (const FExpr<FTableData>& zone : qAsConst(zones)) {
        const_cast<FResultsGenInt*>(this)->addTable(zone);
    }
    stopParentReg();
    FResultsGeneric::readOutputFiles();
}

QStringList FResultsGenInt::valueNamesOf(int number) const {
    const QList<FExpr<FGenIntResultsFile>> files = FGenIntResultsFile::among(mOutputHandles);
    return number < files.size() ? FTemplateValues::namesOf(*files[number].ptr()) : QStringList();
}

// ---- numbers ----

template <class Ask>
double FResultsGenInt::ask(Ask question) const {
    const bool mayRead = prepareResults();
    const FTableData* table = mayRead && !tables().isEmpty() ? tables().first().ptr() : nullptr;
    if (!table) {
        // The number of rows of an average may be a number of the same results.
        if (isReading()) {
            FCmd::warnNow(getName(), QStringLiteral("a number was requested while the results are read"),
                          QStringLiteral("It is NaN; getTable(\"FILE\").getElementAt(\"NAME\") gives numbers of "
                                         "templates that have been read before"));
        }
        return std::numeric_limits<double>::quiet_NaN();
    }
    noteRequest(*table);
    return question(*table);
}

double FResultsGenInt::getDataAt(unsigned int row, unsigned int column) const {
    return ask([=](const FTableData& table) {
        return table.getElementAt(static_cast<int>(row), static_cast<int>(column), nullptr);
    });
}

double FResultsGenInt::getDataAt(const QString& rowHeader, unsigned int column) const {
    return ask([&](const FTableData& table) { return table.getElementAt(rowHeader, static_cast<int>(column)); });
}

double FResultsGenInt::getDataAt(double row, const QString& columnHeader) const {
    return ask([&](const FTableData& table) { return table.getElementAt(FTableData::rowNumber(row), columnHeader); });
}

double FResultsGenInt::getDataAt(const QString& rowHeader, const QString& columnHeader) const {
    return ask([&](const FTableData& table) { return table.getElementAt(rowHeader, columnHeader); });
}

double FResultsGenInt::getLastDataOfRow(int row) const {
    return ask([row](const FTableData& table) { return table.getLastElementOfRow(row); });
}

double FResultsGenInt::getLastDataOfColumn(int column) const {
    return ask([column](const FTableData& table) { return table.getLastElementOfColumn(column); });
}

double FResultsGenInt::getAverageOfLastRows(int numberOfRows, int column) const {
    return ask([=](const FTableData& table) { return table.getAverageOfLastRows(numberOfRows, column); });
}

// ---- files and tables ----

FExpr<FTableData> FResultsGenInt::getData(const QString& name) {
    prepareResults();
    FExpr<FTableData> found = FResultsGeneric::getData(name);
    if (found) {
        return found;
    }
    for (const FExpr<FGenIntResultsFile>& file : FGenIntResultsFile::among(mOutputHandles)) {
        if (file->getName().compare(name, Qt::CaseInsensitive) != 0) {
            continue;
        }
        for (const FExpr<FTableData>& table : tables()) {
            if (table->getName().compare(file->getFileName(), Qt::CaseInsensitive) == 0) {
                return table;
            }
        }
    }
    return {};
}

QString FResultsGenInt::getResultTemplateName(const QString& fileName) const {
    const auto* computation = dynamic_cast<const FGenIntComputation*>(getComputation().ptr());
    const FDefinitionGenInt* definition = computation ? computation->definition() : nullptr;
    const QString folder = getResultPath();
    if (!definition || folder.isEmpty()) {
        return {};
    }
    const QList<FExpr<FGenIntFile>> files = definition->getFiles(1);
    for (const FExpr<FGenIntFile>& file : files) {
        if (file && file->getFileName() == fileName) {
            return folder + fileName;
        }
    }
    return {};
}

void FResultsGenInt::saveScopeManner(QTextStream& stream, unsigned int indent, bool inScope, bool flag) const {
    if (getVariant() && (!getComputation() || isInFolderOfRuns())) {
        FResultsGeneric::saveScopeManner(stream, indent, inScope, flag);
    }
}
