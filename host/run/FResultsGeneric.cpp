#include "host/run/FResultsGeneric.h"

#include "host/core/FChangeCount.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/run/FExternComputation.h"
#include "host/run/FNumberCheck.h"
#include "host/run/FResultFiles.h"
#include "host/run/FResultsOutOfDateBlocker.h"
#include "host/run/FSafePath.h"
#include "host/run/FValueReport.h"
#include "host/script/FCmdTable.h"

#include <QFileInfo>

namespace {

void commands(FCmdTable& table) {
    using F = FResultsGeneric;
    table.member<F>("getTable", &F::getData, {"name"}).readsFiles().alternatives<F>(+[](const F& results) {
        return results.getTableNames();
    });
    table.member<F>("getTableAt", &F::getTableAt, {"number"}).readsFiles().alternatives<F>(+[](const F& results) {
        return results.getTableNames();
    });
    table.member<F>("getTableNames", &F::getTableNames).readsFiles();
    table.member<F>("getImportedObject", &F::getImportedObject, {"value"})
        .readsFiles()
        .alternatives<F>(+[](const F& results) { return results.getImportedObjectNames(); });
    table.member<F>("getImportedObjectNames", &F::getImportedObjectNames).readsFiles();
    table.member<F>("getResultFileName", &F::getResultFileName, {"entry"}).query();
}

}  // namespace

FClassData FResultsGeneric::mClass("FResultsGeneric", &FComputationResults::mClass, &commands);

FComputationResults* FResultsGeneric::createResults(const FExpr<FDesign>& variant,
                                                    const FExpr<FExternComputation>& computation) const {
    auto* results = new FResultsGeneric(QString(), variant, computation);
    results->registerObject();
    results->FResults::init();
    return results;
}

void FResultsGeneric::init(const FResultsGeneric* other) {
    FComputationResults::init(other);
}

bool FResultsGeneric::prepareResults() const {
    const bool mayRead = readSilently();
    if (mayRead) {
        report();
    }
    return mayRead;
}

void FResultsGeneric::readAll() const {
    const FHistoryBlocker blocker;
    auto* self = const_cast<FResultsGeneric*>(this);
    mReading = true;
    destroyChildrenOf(this);
    self->mTables.clear();
    mImportedObjects.clear();
    readOutputFiles();
    self->listTables();
    setOutOfDate(false);
    mReading = false;
    mIsReported = false;
}

void FResultsGeneric::listTables() {
    mListed = mTables;
    for (int number = 0; number < mListed.size(); ++number) {
        const QStringList names = mListed[number]->getRowCount() == 0 ? valueNamesOf(number) : QStringList();
        if (!names.isEmpty()) {
            FNumberOrigin origin;
            origin.flags = FNumberFlag::FileNotRead;
            auto* table = new FTableData(mListed[number]->getName(), static_cast<unsigned int>(names.size()), 1);
            table->setAllVerticalHeaders(names);
            table->setOrigins(QVector<FNumberOrigin>(names.size(), origin));
            table->setOwner(this);
            mListed[number] = FExpr<FTableData>(table);
        }
    }
}

void FResultsGeneric::report() const {
    if (mIsReported) {
        return;
    }
    mIsReported = true;
    warnOfFailedRun();
    const FExpr<FExternComputation> computation = getComputation();
    const std::shared_ptr<const FRunRecord> run = getRun();
    const bool hasFailed = run && !run->isSuccess();
    const FNumberFlags accepted = computation ? FNumberCheck::accepted(computation->getSuccessRules()) : FNumberFlags();
    // The message of a failed run has the entries that changed.
    const QString changed = run && !hasFailed ? run->changedInput : QString();
    for (int i = 0; i < mTables.size(); ++i) {
        FValueReport::log(*mTables[i].ptr(), computation ? computation->getName() : getName(), hasFailed, accepted,
                          changed, mReports[i]);
    }
}

bool FResultsGeneric::readSilently() const {
    if (mReading) {
        return false;
    }
    // Without the files, what was read of them remains.
    if (mFilesRead || mDetached) {
        return true;
    }
    if (!FComputationResults::prepareResults()) {
        return false;
    }
    readAll();
    return true;
}

void FResultsGeneric::reportReading() const {
    mWarned = true;
    report();
}

// Numbers are requested far more often than anything changes. What is evaluated here may request some, too.
const QStringList& FResultsGeneric::knownSetUpChanges() const {
    if (mChangeCount != FChangeCount::now()) {
        mChangeCount = FChangeCount::now();
        mSetUpChanges = getSetUpChanges();
        mChangeCount = FChangeCount::now();
    }
    return mSetUpChanges;
}

void FResultsGeneric::noteRequest(const FTableData& table) const {
    const QStringList& changes = knownSetUpChanges();
    QStringList& noted = mNotedChanges[table.getName()];
    if (noted == changes) {
        return;
    }
    noted = changes;
    const FExpr<FExternComputation> computation = getComputation();
    if (!changes.isEmpty() && computation) {
        FLogMsg::info(computation->getName(),
                      QStringLiteral("the numbers of %1 are of an earlier set-up (%2)")
                          .arg(table.getName(), changes.join(QStringLiteral("; "))),
                      QStringLiteral("To get those of the present one, run it again"));
    }
}

void FResultsGeneric::readOutputFiles() const {
    mFilesRead = true;
}

void FResultsGeneric::warnOfFailedRun() const {
    const std::shared_ptr<const FRunRecord> run = getRun();
    if (mWarned || !run || run->isSuccess()) {
        return;
    }
    mWarned = true;
    const QString path = getResultPath();  // empty once the files are gone
    FLogMsg::warning(run->computation,
                     QStringLiteral("The results%1 come from a run that failed (%2)")
                         .arg(path.isEmpty() ? QString() : QStringLiteral(" in ") + path, run->outcomeName()),
                     QStringLiteral("Values that the run didn't write are NaN"));
}

// Nothing is reported until somebody requests a number.
void FResultsGeneric::detachFromFiles() {
    if (!mReading && !mFilesRead && !mDetached && FComputationResults::prepareResults()) {
        readAll();
    }
    mDetached = true;
}

QString FResultsGeneric::getResultPath() const {
    return mDetached ? QString() : FComputationResults::getResultPath();
}

void FResultsGeneric::becameOutOfDate() const {
    if (!FResultsOutOfDateBlocker::isBlocked()) {
        forgetReading();
    } else if (mFilesRead) {
        setOutOfDate(false);
    }
}

void FResultsGeneric::fillUnknown(const QVector<FSetUpTable>& tables) {
    for (const FSetUpTable& table : tables) {
        addTable(table.name, static_cast<unsigned int>(table.rows.size()), 1)->setAllVerticalHeaders(table.rows);
    }
    listTables();
    mDetached = true;
}

FTableData* FResultsGeneric::addTable(const QString& name, unsigned int rows, unsigned int columns) {
    auto* table = new FTableData(name, rows, columns);
    addTable(FExpr<FTableData>(table));
    return table;
}

void FResultsGeneric::addTable(const FExpr<FTableData>& table) {
    table->setOwner(this);
    mTables.append(table);
}

FExpr<FTableData> FResultsGeneric::getData(const QString& name) {
    prepareResults();
    for (const FExpr<FTableData>& table : qAsConst(mTables)) {
        if (table->getName() == name) {
            return table;
        }
    }
    return {};
}

FExpr<FTableData> FResultsGeneric::getTableAt(unsigned int number) const {
    prepareResults();
    return mTables.value(static_cast<int>(number));
}

QStringList FResultsGeneric::getTableNames() const {
    prepareResults();
    QStringList names;
    for (const FExpr<FTableData>& table : mTables) {
        names.append(table->getName());
    }
    return names;
}

ResultsFileType FResultsGeneric::getResultsFileType(const QString& name) {
    using Type = ResultsFileType;
    static const QHash<QString, Type> types{
        {QStringLiteral("text"), Type::Text}, {QStringLiteral("txt"), Type::Text},
        {QStringLiteral("log"), Type::Text},  {QStringLiteral("out"), Type::Text},
        {QStringLiteral("err"), Type::Text},  {QStringLiteral("lst"), Type::Text},
        {QStringLiteral("msg"), Type::Text},  {QStringLiteral("csv"), Type::Table},
        {QStringLiteral("png"), Type::Image}, {QStringLiteral("jpg"), Type::Image},
        {QStringLiteral("vtk"), Type::Mesh},  {QStringLiteral("vtu"), Type::Mesh},
    };
    return types.value(QFileInfo(name).suffix().toLower(), Type::Any);
}

QString FResultsGeneric::getResultFileName(const QString& entry) const {
    const FExpr<FExternComputation> computation = getComputation();
    QString name = computation ? computation->getResultFile(entry) : QString();
    for (const FExpr<FResultsFileName>& file : mResultFiles) {
        if (name.isEmpty() && file && file->getFileNameText() == entry) {
            name = entry;
        }
    }
    const QString folder = getResultPath();
    const bool isOutside = FSafePath::leadsOut(name) || !FResultFiles::faultOfLinks(folder, name).isEmpty();
    return name.isEmpty() || folder.isEmpty() || isOutside ? QString() : folder + name;
}

const QHash<QString, FExpr<FObject>>& FResultsGeneric::getImportedObjects() const {
    prepareResults();
    return mImportedObjects;
}

FExpr<FObject> FResultsGeneric::getImportedObject(const QString& value) const {
    return getImportedObjects().value(value);
}

QStringList FResultsGeneric::getImportedObjectNames() const {
    QStringList names = getImportedObjects().keys();
    names.sort();
    return names;
}
