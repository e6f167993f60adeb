#include "host/run/FExternComputation.h"

#include "host/core/FChanges.h"
#include "host/core/FFile.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FQuotedText.h"
#include "host/core/FUserInterface.h"
#include "host/run/FChainRun.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultFiles.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRunAttempt.h"
#include "host/run/FRunLock.h"
#include "host/run/FRunSettings.h"
#include "host/script/FProject.h"

#include <QDir>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/** As one text that differs for different lists. */
QString joined(QStringList words) {
    for (QString& word : words) {
        if (word.isEmpty() || word.contains(QLatin1Char(' ')) || word.contains(QLatin1Char('"'))) {
            word = quoteText(word);
        }
    }
    return words.join(QLatin1Char(' '));
}

}  // namespace

FClassData FExternComputation::mClass("FExternComputation", &FManaged::mClass, &FExternComputation::declareCommands,
                                      &FExternComputation::fields);

// The names of folders follow those of computations and designs from now on.
FExternComputation::FExternComputation(const QString& name) : FClass(name) {
    FPathManager::instance();
}

FExternComputation::~FExternComputation() = default;

void FExternComputation::init(const FExternComputation* other) {
    if (other) {
        FManaged::init(other);
        setDesign(other->mDesign);
        copyAttributes(FExternComputation::mClass, *other);
    }
}

QList<FManaged*> FExternComputation::getParts() const {
    FManaged* results = getCurrentResults().ptr();
    return results && results->isInModel() ? QList<FManaged*>{results} : QList<FManaged*>();
}

void FExternComputation::leaveModel() {
    cancel();
}

std::vector<std::unique_ptr<FStateField>> FExternComputation::fields() {
    return FStateFields<FExternComputation>().linked(&FExternComputation::mDesign).take();
}

const FExpr<FDesign>& FExternComputation::getDesign() const {
    static const FExpr<FDesign> none;
    return mDesign ? mDesign : none;
}

void FExternComputation::setDesign(const FExpr<FDesign>& design) {
    if (!canRun()) {
        FLogMsg::warning(getName(), QStringLiteral("Its design can't be changed to %1").arg(design.toString()),
                         QStringLiteral("Wait for the end of the run"));
        return;
    }
    recordChange();
    mDesign.assignFor(this, design);
    setOutOfDate(true);
}

// ---- runs ----

bool FExternComputation::run(bool wait) {
    if (FSetUpCheck::substituteRun(*this)) {
        takeUnknownResults();
        return false;
    }
    if (!mayRun()) {
        return false;
    }
    mSetUpReport.log(FSetUpCheck::problemsOf(*this, true));
    mAttempt = makeAttempt();
    const std::shared_ptr<FRunAttempt> attempt = mAttempt;
    return attempt->execute(wait);
}

bool FExternComputation::mayRun() const {
    if (!canRun()) {
        FLogMsg::warning(getName(), QStringLiteral("A run is still in progress"),
                         QStringLiteral("Start another when it has ended, or cancel it"));
    }
    return canRun();
}

bool FExternComputation::runWithSuppliers(bool wait) {
    if (FSetUpCheck::isReplacingRuns()) {
        for (FExternComputation* supplier : FComputationChain::suppliersOf(*this)) {
            supplier->run();
        }
        return run();
    }
    return mayRun() && FChainRun::run(*this, wait);
}

void FExternComputation::guiRun() {
    FUserInterface::instance()->commitEdits();
    if (FUserInterface::instance()->mayRun()) {
        FRunSettings::areSuppliersFirst() ? runWithSuppliers(false) : run(false);
    }
}

bool FExternComputation::isUpToDate() const {
    // The set-up is compared by its values.
    update();
    const FComputationResults* results = getCurrentResults().ptr();
    const std::shared_ptr<const FRunRecord> run = results ? results->getRun() : nullptr;
    if (!run || run->setUp.isEmpty() || !results->getFaultOfFiles().isEmpty()) {
        return false;
    }
    const QString folder = results->getResultPath();
    if (folder.isEmpty() || !QDir(folder).exists()) {
        return false;
    }
    // A file that is only handed on may be one that the program doesn't always write.
    QStringList files = mRules.withoutOptional(getReadFiles());
    const QString earlier = FPathManager::instance()->getEarlierDir(FExpr<FExternComputation>(this), getDesign());
    const QStringList left = FRunFolder(folder, earlier).left();
    const QStringList handedOn = getFurtherFiles();
    std::copy_if(handedOn.begin(), handedOn.end(), std::back_inserter(files),
                 [&left](const QString& file) { return left.contains(QDir::cleanPath(file)); });
    return FResultFiles(folder, files).missing().isEmpty();
}

void FExternComputation::setPlannedRun(const std::shared_ptr<const FRunRecord>& run) {
    mPlanned = run;
    if (isInModel()) {
        emit FChanges::instance()->objectChanged(this);
    }
}

void FExternComputation::skipRun(FRunRecord::Cause cause, const QString& reason) {
    if (mAttempt) {
        return;
    }
    mAttempt = makeAttempt();
    const std::shared_ptr<FRunAttempt> attempt = mAttempt;
    attempt->skip(cause, reason);
}

std::shared_ptr<FRunAttempt> FExternComputation::makeAttempt() {
    FPathManager* paths = FPathManager::instance();
    const QString folder = paths->getResultsDir(FExpr<FExternComputation>(this), getDesign());
    FProcessSetup setup = mProgram.setupIn(folder);
    setup.exitCodes = mRules.exitCodes;
    return std::make_shared<FRunAttempt>(this, setup,
                                         paths->getEarlierDir(FExpr<FExternComputation>(this), getDesign()),
                                         getReadFiles(), getFurtherFiles());
}

// The rest of a script that is only checked works with them.
void FExternComputation::takeUnknownResults() {
    mResults.make(*this, nullptr);
    applyOutputHandles(mResults.get().ptr());
    if (auto* results = dynamic_cast<FResultsGeneric*>(mResults.get().ptr())) {
        results->fillUnknown(FSetUpCheck::tablesOf(*this));
    }
}

void FExternComputation::triggerRunByTimer() {
    if (std::exchange(mIsTriggered, true)) {
        return;
    }
    QTimer::singleShot(0, this, [this] {
        mIsTriggered = false;
        if (isInModel() && canRun()) {
            run(false);
        }
    });
}

FComputationResults* FExternComputation::takeRun(const std::shared_ptr<const FRunRecord>& run) {
    mRecord = run;
    mPlanned.reset();
    mRunDesign = getDesign();
    mResults.make(*this, run);
    return mResults.get().ptr();
}

std::shared_ptr<FRunAttempt> FExternComputation::endRun() {
    return std::exchange(mAttempt, nullptr);
}

void FExternComputation::stateChanged(FComputationResults* results) {
    setOutOfDate(true);
    emit runChanged();
    for (FManaged* object : {static_cast<FManaged*>(this), static_cast<FManaged*>(results)}) {
        if (object && object->isInModel()) {
            emit FChanges::instance()->objectChanged(object);
        }
    }
}

QString FExternComputation::compareInput() {
    mInput.take(getWrittenValues());
    return mInput.text();
}

QString FExternComputation::prepareRun() const {
    return mAttempt ? mAttempt->makeRoom() : QString();
}

QString FExternComputation::getFileNameFault() const {
    return FResultFiles(QString(), getReadFiles()).faultOfNames();
}

bool FExternComputation::copyInputFiles(const QString& folder) const {
    Q_UNUSED(folder)
    return true;
}

void FExternComputation::runExternalProcess(FComputationResults* results) {
    const std::shared_ptr<FRunAttempt> attempt = mAttempt;
    if (attempt && attempt->startProgram()) {
        stateChanged(results);
    }
}

void FExternComputation::finalizeRun() const {
    if (mAttempt) {
        mAttempt->noteLeft();
    }
}

bool FExternComputation::writeInput(const QString& folder) const {
    const FRunScope scope(folder);
    return copyInputFiles(folder) && doExports() && writeOutputFile();
}

bool FExternComputation::cancel() {
    if (mAttempt) {
        mAttempt->cancel();
    } else if (const std::shared_ptr<FChainRun> chain = mChain) {
        chain->cancel();
        return true;
    }
    return mAttempt != nullptr;
}

const FRunRecord& FExternComputation::getLastRun() const {
    static const FRunRecord none;
    const std::shared_ptr<const FRunRecord> run = getLastRecord();
    return run ? *run : none;
}

QString FExternComputation::getWorkingPath() const {
    return mRecord && isRunOfDesign()
               ? mRecord->folder
               : FPathManager::instance()->getResultPath(FExpr<FExternComputation>(this), getDesign());
}

std::shared_ptr<const FRunRecord> FExternComputation::getLastRecord() const {
    if (mRecord && isRunOfDesign()) {
        return mRecord;
    }
    if (!mStoredRecord || !mStoredRecord->isOver() || mStoredRecord->folder != getWorkingPath()) {
        mStoredRecord = getStoredRun(getDesign());
    }
    return mStoredRecord;
}

std::shared_ptr<const FRunRecord> FExternComputation::getStoredRun(const FExpr<FDesign>& design) const {
    FPathManager* paths = FPathManager::instance();
    // Without a root, there was no run.
    if (!paths->hasRoot()) {
        return nullptr;
    }
    return FRunStore(paths->getEarlierDir(FExpr<FExternComputation>(this), design))
        .read(paths->getResultPath(FExpr<FExternComputation>(this), design));
}

void FExternComputation::runMoved(const QString& from, const QString& to) {
    if (!mRecord || mRecord->folder != from) {
        return;
    }
    auto moved = std::make_shared<FRunRecord>(*mRecord);
    moved->folder = to;
    if (mResults.get() && mResults.get()->getRun() == mRecord) {
        mResults.get()->setRun(moved);
    }
    mRecord = moved;
    FPathManager::instance()->runMoved(from, to);
    setOutOfDate(true);
}

QMap<QString, QString> FExternComputation::describeSetUp() const {
    QMap<QString, QString> setUp{{QStringLiteral("program"), mProgram.executable},
                                 {QStringLiteral("program file:"), mProgram.fileVersion()},
                                 {QStringLiteral("arguments"), joined(mProgram.arguments)},
                                 {QStringLiteral("environment"), joined(mProgram.environment)},
                                 {QStringLiteral("standard input"), mProgram.standardInput}};
    const QMap<QString, QString> files = mProgram.argumentVersions(getWorkingPath());
    for (auto file = files.begin(); file != files.end(); ++file) {
        setUp.insert(QStringLiteral("file %1:").arg(file.key()), file.value());
    }
    return setUp;
}

QString FExternComputation::getHolderOfRuns() {
    FProject::instance()->takeOverIfFree();
    return FProject::instance()->getHolder();
}

// ---- results ----

const FObject* FExternComputation::getResultType() const {
    return FResultsGeneric::null();
}

// Saved results of a design are taken when they are first requested: an undo changes the design without a call.
const FExpr<FComputationResults>& FExternComputation::getCurrentResults() const {
    const bool isMissing = getDesign() && !mResults.get();
    if (!mAttempt && (isMissing || !mResults.isOf(getDesign()))) {
        mResults.take(*this);
    }
    return mResults.get();
}

QString FExternComputation::explainNoResults(const FExternComputation& computation) {
    return QStringLiteral("%1 has no results yet: run it first").arg(computation.getName());
}

bool FExternComputation::prepareResults() const {
    return getCurrentResults() && getCurrentResults()->prepareResults();
}

bool FExternComputation::canRereadResults() const {
    // Without a root, there was no run, and the path would create one.
    return canRun() &&
           (getCurrentResults() || (FPathManager::instance()->hasRoot() && QDir(getWorkingPath()).exists()));
}

bool FExternComputation::refetchResults() {
    if (!canRereadResults() || !rereadRefusal().isEmpty()) {
        return false;
    }
    if (!getCurrentResults()) {
        mResults.make(*this, getLastRecord());
    }
    processReread(getCurrentResults().ptr());
    setOutOfDate(true);
    return true;
}

FExpr<FComputationResults> FExternComputation::readFolder(const QString& folder) {
    const FHistoryBlocker blocker;
    const auto* type = dynamic_cast<const FComputationResults*>(getResultType());
    FExpr<FComputationResults> results(type ? type->createResults({}, FExpr<FExternComputation>(this)) : nullptr);
    if (results) {
        results->setResultPath(folder);
        if (FFile::realPath(folder) == FFile::realPath(getWorkingPath())) {
            results->setRun(getLastRecord());
        }
        processReread(results.ptr());
    }
    return results;
}

// As for a run: half-written files would be read.
QString FExternComputation::rereadRefusal() const {
    const QString holder = getHolderOfRuns();
    if (!holder.isEmpty()) {
        return QStringLiteral("The project is open elsewhere (%1), and its runs there write into the same folder")
            .arg(holder);
    }
    FPathManager* paths = FPathManager::instance();
    const QString earlier = paths->getEarlierDir(FExpr<FExternComputation>(this), getDesign());
    if (canRun() && FRunLock(FRunFolder::lockFile(earlier)).isHeld()) {
        return QStringLiteral("A program of another run is still running in the folder '%1'").arg(getWorkingPath());
    }
    return FRunFolder(getWorkingPath(), earlier).fault({});
}

bool FExternComputation::rereadResults() {
    if (FSetUpCheck::substituteRun(*this)) {
        takeUnknownResults();
        return false;
    }
    if (const QString refusal = rereadRefusal(); !refusal.isEmpty()) {
        FLogMsg::warning(getName(), QStringLiteral("Its results aren't read again: ") + refusal,
                         QStringLiteral("Read them again when that is changed"));
        return false;
    }
    if (!refetchResults()) {
        FLogMsg::warning(getName(), QStringLiteral("There are no results that can be read again"),
                         canRun() ? QStringLiteral("Run it first") : QStringLiteral("Wait for the end of the run"));
        return false;
    }
    const QString problem = mResults.rereadProblem(getReadFiles(), mRules);
    if (!problem.isEmpty()) {
        FLogMsg::warning(getName(), QStringLiteral("Not all of its results can be read again: ") + problem);
    }
    return problem.isEmpty();
}
