#include "host/gui/panels/FTablePanel.h"

#include "host/core/FChanges.h"
#include "host/core/FClipboard.h"
#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/core/FSavedFile.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FListView.h"
#include "host/gui/base/FSeverityLook.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/panels/FRunModel.h"
#include "host/gui/panels/FTableModel.h"
#include "host/run/FExternComputation.h"
#include "host/run/FNumberCheck.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FValueSummary.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace {

/** Copies rows as CSV. */
class FTableView : public FListView {
 public:
    FTableView(FTableModel* model, QWidget* parent)
        : FListView(QStringLiteral("resultTable"), QStringLiteral("Results"), model, parent), mpModel(model) {}

    QString toText() const override { return mpModel->toCsv(selectionModel()->selectedRows()); }

 private:
    FTableModel* mpModel;
};

bool isCurrent(const FResultsGeneric& results) {
    const FExpr<FExternComputation> computation = results.getComputation();
    return computation && computation->getCurrentResults().ptr() == &results;
}

}  // namespace

QString FTablePanel::keyOf(const FExpr<FResultsGeneric>& results) {
    const FManaged* shown = results.ptr();
    if (shown && isCurrent(*results.ptr())) {
        shown = results->getComputation().ptr();
    }
    return shown ? QStringLiteral("results:%1").arg(shown->getDbId()) : QString();
}

QString FTablePanel::titleOf(const FExpr<FResultsGeneric>& results) {
    return isCurrent(*results.ptr()) ? QStringLiteral("Results of %1").arg(results->getComputation()->getName())
                                     : results->getName();
}

FExpr<FResultsGeneric> FTablePanel::presentOf(FExternComputation& computation) {
    if (!computation.getCurrentResults() && computation.canRereadResults()) {
        FUserStep::commitEdits();
        computation.rereadResults();
    }
    return FExpr<FResultsGeneric>(computation.getCurrentResults());
}

FTablePanel::FTablePanel(FNavigator& navigator, const FRunModel& runs, const FExpr<FResultsGeneric>& results)
    : mNavigator(navigator),
      mRuns(runs),
      mComputation(isCurrent(*results.ptr()) ? results->getComputation() : FExpr<FExternComputation>()),
      mResultsId(mComputation ? 0 : results->getDbId()),
      mpSign(new QLabel(this)),
      mpState(new QLabel(this)),
      mpRun(new QComboBox(this)),
      mpTable(new QComboBox(this)),
      mpModel(new FTableModel) {
    setObjectName(QStringLiteral("results"));
    mpRun->view()->setAccessibleName(QStringLiteral("Runs"));
    mpTable->view()->setAccessibleName(QStringLiteral("Tables"));
    mpModel->setParent(this);
    QWidget* header = makeHeader();
    mpView = new FTableView(mpModel, this);  // Tab follows the order of creation
    new FEmptyHint(mpView, QStringLiteral("Numbers appear here when a run has written the output files"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header);
    column->addWidget(mpView, 1);
    connect(mpView, &QTreeView::clicked, this, &FTablePanel::showPlace);
    connect(mpView, &QTreeView::activated, this, &FTablePanel::showPlace);
    connect(mpTable, QOverload<int>::of(&QComboBox::activated), this, &FTablePanel::showTable);
    connect(mpRun, QOverload<int>::of(&QComboBox::activated), this, [this](int choice) {
        const QPersistentModelIndex run = mpRun->itemData(choice).value<QPersistentModelIndex>();
        showRun(run.isValid() ? run.row() : -1);
    });

    const FChanges* changes = FChanges::instance();
    const auto refreshSoon = [this] { mRefresh.request(); };
    connect(changes, &FChanges::objectChanged, this, refreshSoon);
    connect(changes, &FChanges::objectLeft, this, refreshSoon);
    connect(changes, &FChanges::objectRenamed, this, refreshSoon);
    connect(changes, &FChanges::stepUndone, this, refreshSoon);
    connect(changes, &FChanges::stepRedone, this, refreshSoon);
    connect(&runs, &QAbstractItemModel::dataChanged, this, refreshSoon);
    connect(&runs, &QAbstractItemModel::modelReset, this, refreshSoon);
    refresh();
}

QWidget* FTablePanel::makeHeader() {
    auto* header = new QWidget(this);
    mpHeader = new QBoxLayout(QBoxLayout::LeftToRight, header);
    const int margin = fontMetrics().height() / 4;
    mpHeader->setContentsMargins(margin, margin, margin, margin);
    mpHeader->setSpacing(margin);
    auto* state = new QHBoxLayout;
    state->addWidget(mpSign);
    mpState->setObjectName(QStringLiteral("resultState"));
    mpState->setWordWrap(true);
    mpState->setTextInteractionFlags(Qt::TextSelectableByMouse);
    state->addWidget(mpState, 1);
    mpHeader->addLayout(state, 1);
    auto& row = *new QHBoxLayout;
    mpHeader->addLayout(&row);
    mpRun->setObjectName(QStringLiteral("shownRun"));
    mpRun->setAccessibleName(QStringLiteral("Run"));
    mpRun->setToolTip(QStringLiteral("The run whose numbers are shown"));
    mpRun->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    row.addWidget(mpRun);
    mpTable->setObjectName(QStringLiteral("resultFile"));
    mpTable->setAccessibleName(QStringLiteral("Output file"));
    mpTable->setToolTip(QStringLiteral("The file whose numbers are shown"));
    row.addWidget(mpTable);
    mpCompare = FToolButton::addTo(row, QStringLiteral("compareResults"), QStringLiteral("view-split-left-right"),
                                   QStringLiteral("Show the numbers of the run before beside these"));
    mpCompare->setCheckable(true);
    connect(mpCompare, &QToolButton::clicked, this, &FTablePanel::compare);
    auto* others = new QMenu(mpCompare);
    others->setObjectName(QStringLiteral("runsToCompare"));
    connect(others, &QMenu::aboutToShow, this, [this, others] { fillRuns(*others); });
    mpCompare->setMenu(others);
    mpCompare->setPopupMode(QToolButton::MenuButtonPopup);
    const QToolButton* copy = FToolButton::addTo(row, QStringLiteral("copyResults"), QStringLiteral("edit-copy"),
                                                 QStringLiteral("Copy the selected rows, or all, as CSV (Ctrl+C)"));
    connect(copy, &QToolButton::clicked, this, [this] { FClipboard::setText(mpView->toText()); });
    const QToolButton* save = FToolButton::addTo(row, QStringLiteral("exportTable"), QStringLiteral("document-export"),
                                                 QStringLiteral("Write the results to a CSV file"));
    connect(save, &QToolButton::clicked, this, &FTablePanel::exportCsv);
    row.addStretch();
    return header;
}

// What is said of the run is more than a few words: it gets a line of its own where the window is narrow.
void FTablePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    constexpr int narrow = 110;  // characters
    const bool isNarrow = width() < narrow * fontMetrics().averageCharWidth();
    mpHeader->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

// Not a focus proxy, with which Tab would pass over the header.
void FTablePanel::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    mpView->setFocus();
}

FResultsGeneric* FTablePanel::results() const {
    FManaged* object =
        mComputation ? mComputation->getCurrentResults().ptr() : FObjectManager::instance()->find(mResultsId);
    return dynamic_cast<FResultsGeneric*>(object);
}

// While a run is in progress, the numbers of the run before stay.
void FTablePanel::refresh() {
    FResultsGeneric* shown = results();
    if (!shown) {
        mTables.clear();
        mBefore.clear();
        showTable();
        showState();
        if (!mComputation) {
            emit gone();
        }
        return;
    }
    const bool isEarlier = mShownRun.isValid();
    if (isEarlier || shown->prepareResults()) {
        take(isEarlier ? mRuns.tablesOf(mShownRun.row()) : shown->listedTables());
    }
    offerRuns();
    mpTable->setVisible(mTables.size() > 1);
    isEarlier ? showStateOfEarlier() : showState();
}

void FTablePanel::take(const QList<FExpr<FTableData>>& tables) {
    // The numbers of an earlier run stay if the list of runs doesn't keep them any longer.
    if (tables == mTables || (tables.isEmpty() && mShownRun.isValid())) {
        return;
    }
    mTables = tables;
    if (!mChosen.isEmpty()) {
        setBefore(mChosen, mBeforeTitle);
    } else if (mpCompare->isChecked()) {
        readBefore();
    }
    const QString before = mpTable->currentText();
    mpTable->clear();
    for (const FExpr<FTableData>& table : qAsConst(mTables)) {
        mpTable->addItem(table->getName());
    }
    mpTable->setCurrentIndex(std::max(mpTable->findText(before), 0));
    showTable();
}

void FTablePanel::showTable() {
    const int number = mpTable->currentIndex();
    mpModel->setTable(mTables.value(number), mBefore.value(number), mBeforeTitle, accepted());
    bool hasParts = false;
    for (int row = 0; row < mpModel->rowCount() && !hasParts; ++row) {
        hasParts = mpModel->rowCount(mpModel->index(row, 0)) > 0;
    }
    mpView->setRootIsDecorated(hasParts);
    for (int column = 0; column + 1 < mpModel->columnCount(); ++column) {
        mpView->resizeColumnToContents(column);
        const int gap = 2 * fontMetrics().averageCharWidth();
        mpView->header()->resizeSection(column, mpView->header()->sectionSize(column) + gap);
    }
}

FNumberFlags FTablePanel::accepted() const {
    const FResultsGeneric* shown = results();
    const FExpr<FExternComputation> computation = shown ? shown->getComputation() : FExpr<FExternComputation>();
    return computation ? FNumberCheck::accepted(computation->getSuccessRules()) : FNumberFlags();
}

void FTablePanel::showState() {
    const FResultsGeneric* shown = results();
    const std::shared_ptr<const FRunRecord> run = shown ? shown->getRun() : nullptr;
    if (!run) {
        mpSign->hide();
        mpState->setText(shown ? FValueSummary(mTables, accepted()).toText() : QStringLiteral("No results"));
        return;
    }
    const QString state = shown->getStateText();
    const FValueSummary summary(mTables, accepted());
    QString text = state.left(1).toUpper() + state.mid(1);
    if (!run->isOver()) {
        text += mTables.isEmpty() ? QString() : QStringLiteral("; the numbers are those of the run before");
    } else {
        text += QStringLiteral(". %1.").arg(summary.toText());
    }
    mpState->setText(text);
    const bool isGood = run->isSuccess() && state == run->stateName() && summary.first.isEmpty();
    const int size = fontMetrics().height();
    const QIcon sign = isGood             ? FIcons::get(QStringLiteral("dialog-ok-apply"))
                       : !run->isOver()   ? FIcons::get(QStringLiteral("media-playback-start"))
                       : run->isSuccess() ? FSeverityLook::warningIcon()
                                          : FSeverityLook::errorIcon();
    mpSign->setPixmap(sign.pixmap(size, size));
    mpSign->show();
}

void FTablePanel::showStateOfEarlier() {
    const QString text = QStringLiteral("Earlier run: %1. %2.");
    mpState->setText(text.arg(titleOfRun(mShownRun.row()), FValueSummary(mTables, accepted()).toText()));
    const int size = fontMetrics().height();
    mpSign->setPixmap(FIcons::get(QStringLiteral("view-history")).pixmap(size, size));
    mpSign->show();
}

void FTablePanel::showPlace(const QModelIndex& index) {
    const FResultsGeneric* shown = results();
    const QString folder = mShownRun.isValid() ? mRuns.folderOf(mShownRun.row())
                           : shown             ? shown->getResultPath()
                                               : QString();
    FNavigator::Place place = mpModel->placeOf(index);
    if (folder.isEmpty() || !QFileInfo::exists(folder + place.file)) {
        mNavigator.showStatus(QStringLiteral("The file %1 of this run is gone").arg(place.file));
        return;
    }
    place.file = folder + place.file;
    mNavigator.showFile(place);
}

// ---- comparison ----

QList<int> FTablePanel::otherRuns(const QList<FExpr<FTableData>>& given) const {
    const FResultsGeneric* shown = results();
    const FExpr<FExternComputation> computation = shown ? shown->getComputation() : FExpr<FExternComputation>();
    QList<int> runs;
    for (int row = 0; computation && row < mRuns.rowCount(); ++row) {
        const QList<FExpr<FTableData>>& tables = mRuns.tablesOf(row);
        if (!tables.isEmpty() && tables != given && mRuns.computation(row) == computation.ptr()) {
            runs.append(row);
        }
    }
    return runs;
}

QString FTablePanel::titleOfRun(int run) const {
    return QStringLiteral("%1, %2").arg(mRuns.index(run, FRunModel::runColumn).data().toString(),
                                        mRuns.index(run, FRunModel::startColumn).data().toString());
}

/** Has the user choose among the runs of the session, if there are several. */
void FTablePanel::offerRuns() {
    mpRun->clear();
    mpRun->addItem(QStringLiteral("Present results"));
    const FResultsGeneric* present = results();
    for (const int run : otherRuns(present ? present->listedTables() : mTables)) {
        mpRun->addItem(titleOfRun(run), QVariant::fromValue(QPersistentModelIndex(mRuns.index(run, 0))));
        if (mShownRun.isValid() && run == mShownRun.row()) {
            mpRun->setCurrentIndex(mpRun->count() - 1);
        }
    }
    mpRun->setVisible(mComputation && mpRun->count() > 1);
}

void FTablePanel::showRun(int run) {
    mShownRun = run < 0 ? QModelIndex() : mRuns.index(run, 0);
    refresh();
}

void FTablePanel::fillRuns(QMenu& menu) {
    menu.clear();
    const QAction* before = menu.addAction(QStringLiteral("The run before"));
    connect(before, &QAction::triggered, this, [this] { compare(true); });
    menu.actions().first()->setVisible(!mShownRun.isValid());
    menu.addSeparator();
    bool isPresentListed = !mShownRun.isValid();
    const FResultsGeneric* present = results();
    for (const int row : otherRuns(mTables)) {
        isPresentListed = isPresentListed || (present && mRuns.tablesOf(row) == present->listedTables());
        // Rows move with each further run.
        const QPersistentModelIndex run(mRuns.index(row, 0));
        connect(menu.addAction(titleOfRun(row)), &QAction::triggered, this,
                [this, run] { compareWith(run.isValid() ? run.row() : -1); });
    }
    if (!isPresentListed && present) {
        connect(menu.addAction(QStringLiteral("Present results")), &QAction::triggered, this,
                [this, tables = present->listedTables()] { compareWith(tables, QStringLiteral("Present")); });
    }
}

void FTablePanel::compareWith(int run) {
    if (run >= 0) {
        compareWith(mRuns.tablesOf(run), mRuns.index(run, FRunModel::runColumn).data().toString());
    }
}

void FTablePanel::compareWith(const QList<FExpr<FTableData>>& tables, const QString& title) {
    mChosen = tables;
    setBefore(mChosen, title);
    mpCompare->setChecked(!mBefore.isEmpty());
    showTable();
}

void FTablePanel::setBefore(const QList<FExpr<FTableData>>& tables, const QString& title) {
    mBefore.clear();
    mBeforeTitle = title;
    for (const FExpr<FTableData>& table : qAsConst(mTables)) {
        const auto same = std::find_if(tables.begin(), tables.end(),
                                       [&](const auto& other) { return other->getName() == table->getName(); });
        mBefore.append(same == tables.end() ? FExpr<FTableData>(new FTableData) : *same);
    }
}

void FTablePanel::compare(bool isCompared) {
    mChosen.clear();
    if (isCompared) {
        readBefore();
    } else {
        mBefore.clear();
    }
    mpCompare->setChecked(!mBefore.isEmpty());
    showTable();
    if (isCompared && mBefore.isEmpty()) {
        mNavigator.showStatus(QStringLiteral("There is no run before whose files are left"));
    }
}

// Read with the present marks. The results are made for it, and only their tables stay.
void FTablePanel::readBefore() {
    mBefore.clear();
    const FResultsGeneric* shown = results();
    const FExpr<FExternComputation> computation = shown ? shown->getComputation() : FExpr<FExternComputation>();
    if (!computation || !mComputation) {
        return;
    }
    const QString folder = FPathManager::instance()->getEarlierDir(computation, computation->getDesign());
    if (!QDir(folder).exists()) {
        return;
    }
    const FHistoryBlocker blocker;
    const FExpr<FComputationResults> earlier = computation->readFolder(folder + QLatin1Char('/'));
    const auto* read = dynamic_cast<const FResultsGeneric*>(earlier.ptr());
    if (!read) {
        return;
    }
    if (read->readSilently()) {
        setBefore(read->listedTables(), QStringLiteral("Run before"));
    }
    FManaged::destroy(earlier.ptr(), false);
}

// ---- export ----

QString FTablePanel::toCsv() const {
    QString text;
    for (int number = 0; number < mTables.size(); ++number) {
        FTableModel table;
        table.setTable(mTables.at(number), mBefore.value(number), mBeforeTitle, accepted());
        text += mTables.size() > 1 ? mTables.at(number)->getName() + QLatin1Char('\n') : QString();
        text += table.toCsv({});
    }
    return text;
}

void FTablePanel::exportCsv() {
    const QString start = FPathManager::getProjectDir() + QStringLiteral("/results.csv");
    const QString path = FUserInterface::instance()->askSaveFile(QStringLiteral("Export results as CSV"), start,
                                                                 QStringLiteral("Comma-separated values (*.csv)"));
    if (path.isEmpty()) {
        return;
    }
    const QString fault = FSavedFile::write(path, toCsv().toUtf8());
    if (fault.isEmpty()) {
        mNavigator.showStatus(QStringLiteral("Exported %1").arg(QDir::toNativeSeparators(path)));
    } else {
        FUserInterface::instance()->tell(QString(), QStringLiteral("Can't write %1: %2").arg(path, fault));
    }
}
