#include "host/gui/panels/FRunModel.h"

#include "host/core/FChanges.h"
#include "host/core/FObjectManager.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FRunLook.h"
#include "host/run/FCauseLines.h"
#include "host/run/FExternComputation.h"
#include "host/run/FNumberCheck.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FValueSummary.h"

#include <algorithm>
#include <cmath>

using State = FRunRecord::State;
using Cause = FRunRecord::Cause;

namespace {

constexpr int second = 1000;  // milliseconds

/** What a run that failed has to say: the program's own words if there are any. */
QString causeOf(const FRunRecord& record) {
    const bool isOfProgram = record.cause == Cause::ExitCode || record.cause == Cause::Signal;
    const FCauseLines::Line line = FCauseLines::fromText(record.causeLines.section(QLatin1Char('\n'), 0, 0));
    return isOfProgram && !line.file.isEmpty()
               ? QStringLiteral("%1 (%2:%3)").arg(line.text.simplified(), line.file, QString::number(line.number))
               : record.message.section(QLatin1Char('\n'), 0, 0);
}

QList<FExpr<FTableData>> readTables(const FExternComputation* computation) {
    const auto* results =
        computation ? dynamic_cast<const FResultsGeneric*>(computation->getCurrentResults().ptr()) : nullptr;
    return results && results->readSilently() ? results->listedTables() : QList<FExpr<FTableData>>();
}

FValueSummary summaryOf(const FExternComputation& computation, const QList<FExpr<FTableData>>& tables) {
    return FValueSummary(tables, FNumberCheck::accepted(computation.getSuccessRules()));
}

QString textOf(const FValueSummary& summary, const FRunRecord& record) {
    const QString values = summary.toText();
    return record.message.isEmpty() ? values : QStringLiteral("%1. %2").arg(values, record.message);
}

QString startText(const QDateTime& start) {
    if (!start.isValid()) {
        return {};
    }
    const bool isToday = start.date() == QDate::currentDate();
    return start.toString(isToday ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd HH:mm"));
}

}  // namespace

FRunModel::FRunModel() {
    mClock.setInterval(second);
    connect(&mClock, &QTimer::timeout, this, &FRunModel::tick);
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectChanged, this,
            [this](FManaged* object) { follow(dynamic_cast<FExternComputation*>(object)); });
    connect(changes, &FChanges::projectOpened, this, &FRunModel::addStored);
    connect(changes, &FChanges::projectClosed, this, &FRunModel::clear);
    addStored();
}

void FRunModel::addStored() {
    clear();
    for (FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        auto* computation = dynamic_cast<FExternComputation*>(object);
        const std::shared_ptr<const FRunRecord> record = computation->getLastRecord();
        if (record && record->state != State::Ready) {
            add(computation, record, 0);
        }
    }
}

void FRunModel::clear() {
    beginResetModel();
    mAttempts.clear();
    mNumber = 0;
    endResetModel();
}

void FRunModel::add(FExternComputation* computation, const std::shared_ptr<const FRunRecord>& record, int number) {
    if (mAttempts.size() >= most) {
        beginRemoveRows({}, rowCount() - 1, rowCount() - 1);
        mAttempts.pop_back();
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    mAttempts.push_front(
        {number, record, FExpr<FExternComputation>(computation),
         FPathManager::instance()->getEarlierDir(FExpr<FExternComputation>(computation), computation->getDesign()) +
             QLatin1Char('/'),
         computation->getProgram().timeLimit});
    endInsertRows();
    // A computation that leaves the model during its run isn't reported as changed any more.
    connect(computation, &FExternComputation::runChanged, this, &FRunModel::tick, Qt::UniqueConnection);
    rowChanged(0);
}

void FRunModel::follow(FExternComputation* computation) {
    if (!computation) {
        return;
    }
    followPlan(computation);
    const std::shared_ptr<const FRunRecord> record = computation->getLastRecord();
    if (!record || record->state == State::Ready || computation->getPlannedRun()) {
        return;
    }
    for (int row = 0; row < rowCount(); ++row) {
        const FRunRecord& known = *attempt(row).record;
        // A run whose files have moved has a new record.
        const bool isSame =
            attempt(row).record == record || (known.isOver() && known.start.isValid() && known.start == record->start &&
                                              known.computation == record->computation);
        if (isSame) {
            takeRecord(row, record);
            return;
        }
    }
    const int waiting = waitingRowOf(computation);
    if (waiting < 0) {
        add(computation, record, ++mNumber);
    } else {
        Attempt& started = mAttempts[static_cast<std::size_t>(waiting)];
        started.isPlanned = false;
        started.number = ++mNumber;
        started.said.clear();
        takeRecord(waiting, record);
    }
    if (!record->isOver()) {
        emit runStarted(waiting < 0 ? 0 : waiting);
    }
}

void FRunModel::followPlan(FExternComputation* computation) {
    const std::shared_ptr<const FRunRecord>& plan = computation->getPlannedRun();
    if (plan && rowOf(plan) < 0) {
        add(computation, plan, 0);
        mAttempts.front().isPlanned = true;
        mAttempts.front().said = plan->message;
    }
    for (int row = 0; row < rowCount(); ++row) {
        if (attempt(row).isPlanned && attempt(row).computation.ptr() == computation) {
            rowChanged(row);
        }
    }
}

void FRunModel::takeRecord(int row, const std::shared_ptr<const FRunRecord>& record) {
    Attempt& shown = mAttempts[static_cast<std::size_t>(row)];
    shown.record = record;
    // At once: a script may start the next run before the event loop is reached.
    if (record->isOver() && !shown.isSummarized) {
        summarize(row);
    }
    rowChanged(row);
}

int FRunModel::waitingRowOf(const FExternComputation* computation) const {
    for (int row = 0; row < rowCount(); ++row) {
        if (attempt(row).isPlanned && record(row).state == State::Waiting &&
            attempt(row).computation.ptr() == computation) {
            return row;
        }
    }
    return -1;
}

void FRunModel::rowChanged(int row) {
    emit dataChanged(index(row, 0), index(row, columns - 1));
    if (!attempt(row).record->isOver()) {
        mClock.start();
    } else if (!attempt(row).isSummarized) {
        mSummarize.request();
    }
}

void FRunModel::tick() {
    bool isAnyRunning = false;
    for (int row = 0; row < rowCount(); ++row) {
        const bool isOver = attempt(row).record->isOver();
        isAnyRunning = isAnyRunning || !isOver;
        if (!isOver || !attempt(row).isSummarized) {
            rowChanged(row);
        }
    }
    if (!isAnyRunning) {
        mClock.stop();
    }
}

void FRunModel::summarize() {
    for (int row = 0; row < rowCount(); ++row) {
        if (attempt(row).record->isOver() && !attempt(row).isSummarized) {
            summarize(row);
            rowChanged(row);
        }
    }
}

void FRunModel::summarize(int row) {
    Attempt& done = mAttempts[static_cast<std::size_t>(row)];
    done.isSummarized = true;
    if (done.record->isSuccess() && isLast(row)) {
        done.tables = readTables(computation(row));
    }
    if (done.tables.isEmpty()) {
        done.said = causeOf(*done.record);
    } else {
        const FValueSummary summary = summaryOf(*computation(row), done.tables);
        done.lacksNumbers = summary.missing > 0;
        done.said = ::textOf(summary, *done.record);
    }
    limitNumbers();
}

void FRunModel::limitNumbers() {
    int numbers = 0;
    for (Attempt& kept : mAttempts) {
        for (const FExpr<FTableData>& table : qAsConst(kept.tables)) {
            numbers += table->getRowCount() * std::max(table->getColumnCount(), 1);
        }
        if (numbers > mostNumbers && &kept != &mAttempts.front()) {
            kept.tables.clear();
        }
    }
}

int FRunModel::rowOf(const std::shared_ptr<const FRunRecord>& record) const {
    const auto found = std::find_if(mAttempts.begin(), mAttempts.end(),
                                    [&](const Attempt& attempt) { return attempt.record == record; });
    return found == mAttempts.end() ? -1 : static_cast<int>(found - mAttempts.begin());
}

FExternComputation* FRunModel::computation(int row) const {
    return attempt(row).computation.ptr();
}

bool FRunModel::canStop(int row) const {
    const FExternComputation* running = record(row).isOver() || !isLast(row) ? nullptr : computation(row);
    return running && !running->canRun() && !isStopping(row);
}

void FRunModel::stop(int row) {
    if (FExternComputation* running = canStop(row) ? computation(row) : nullptr) {
        mAttempts[static_cast<std::size_t>(row)].isStopping = running->cancel();
        rowChanged(row);
    }
}

bool FRunModel::isLast(int row) const {
    for (int newer = 0; newer < row; ++newer) {
        if (record(newer).folder == record(row).folder) {
            return false;
        }
    }
    return true;
}

QString FRunModel::folderOf(int row) const {
    if (record(row).isSkipped()) {
        return {};
    }
    int newer = 0;
    for (int other = 0; other < row; ++other) {
        newer += !record(other).isSkipped() && record(other).folder == record(row).folder;
    }
    return newer == 0 ? record(row).folder : newer == 1 ? attempt(row).earlier : QString();
}

double FRunModel::secondsOf(int row) const {
    const FRunRecord& run = record(row);
    if (!run.start.isValid()) {
        return -1;
    }
    const QDateTime end = run.isOver() ? run.end : QDateTime::currentDateTime();
    return end.isValid() ? static_cast<double>(run.start.msecsTo(end)) / second : -1;
}

QString FRunModel::timeText(double seconds) {
    constexpr int minute = 60;
    if (seconds < 0) {
        return {};
    }
    if (seconds < minute) {
        return QStringLiteral("%1 s").arg(seconds, 0, 'f', 1);
    }
    const auto whole = static_cast<qint64>(seconds);
    const qint64 minutes = whole / minute;
    const QChar zero(QLatin1Char('0'));
    return minutes < minute ? QStringLiteral("%1 min %2 s").arg(minutes).arg(whole % minute, 2, 10, zero)
                            : QStringLiteral("%1 h %2 min").arg(minutes / minute).arg(minutes % minute, 2, 10, zero);
}

int FRunModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mAttempts.size());
}

int FRunModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QString FRunModel::stateText(const FRunRecord& record, bool isStopping) const {
    return isStopping && !record.isOver() ? QStringLiteral("stopping") : FRunLook::textOf(record);
}

QString FRunModel::textOf(int row, int column) const {
    const Attempt& shown = attempt(row);
    switch (column) {
        case runColumn:
            return shown.number > 0
                       ? QStringLiteral("%1 %2").arg(shown.record->computation, QString::number(shown.number))
                   : shown.isPlanned ? shown.record->computation
                                     : QStringLiteral("%1, earlier").arg(shown.record->computation);
        case stateColumn:
            return stateText(*shown.record, shown.isStopping);
        case startColumn:
            return startText(shown.record->start);
        case tookColumn:
            return timeText(secondsOf(row));
        default:
            return shown.said;
    }
}

QVariant FRunModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const FRunRecord& run = record(index.row());
    const FRunLook look = attempt(index.row()).lacksNumbers ? FRunLook{"dialog-warning", FStateColor::State::Warning}
                                                            : FRunLook::of(run.state);
    const bool isState = index.column() == stateColumn;
    switch (role) {
        case Qt::DisplayRole:
            return textOf(index.row(), index.column());
        case Qt::ToolTipRole:
            return run.cause == Cause::None ? textOf(index.row(), index.column()) : run.failureText();
        case Qt::DecorationRole:
            return isState ? FIcons::get(QString::fromLatin1(look.icon)) : QVariant();
        case Qt::ForegroundRole:
            return isState ? FStateColor::of(look.color) : QVariant();
        case Qt::TextAlignmentRole:
            return index.column() == tookColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
        default:
            return {};
    }
}

QVariant FRunModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const char* const titles[] = {"Run", "State", "Started", "Took", "What was said"};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole && section < columns
               ? QString::fromLatin1(titles[section])
               : QAbstractTableModel::headerData(section, orientation, role);
}
