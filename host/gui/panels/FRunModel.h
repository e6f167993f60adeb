#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FQueuedCall.h"
#include "host/run/FRunRecord.h"
#include "host/run/FTableData.h"

#include <QAbstractTableModel>
#include <QList>
#include <QTimer>

#include <deque>
#include <memory>

class FExternComputation;

/**
 * The runs of all computations in this session, the newest first, and the last run that is stored for each computation
 * of the project. When a chain is run, each of its members has a row at once, which becomes that of its run.
 */
class MERIX_EXPORT FRunModel : public QAbstractTableModel {
    Q_OBJECT

 public:
    /** Runs beyond that number push out the oldest. */
    static constexpr std::size_t most = 1000;
    /** The numbers of earlier runs are kept up to this count. */
    static constexpr int mostNumbers = 200'000;
    enum Column { runColumn, stateColumn, startColumn, tookColumn, saidColumn, columns };

    FRunModel();

    const FRunRecord& record(int row) const { return *attempt(row).record; }
    /** The row with that record; -1 if there is none. */
    int rowOf(const std::shared_ptr<const FRunRecord>& record) const;
    /** Null if it is no longer in the model. */
    FExternComputation* computation(int row) const;
    /** Where the files of the run are, with a slash at the end; empty if later runs have replaced them. */
    QString folderOf(int row) const;
    /** Whether the run is the last one of its computation, so that its results are the present ones. */
    bool isLast(int row) const;
    /** The tables that the run gave; none if it has failed, or if its numbers aren't kept any more. */
    const QList<FExpr<FTableData>>& tablesOf(int row) const { return attempt(row).tables; }
    bool isStopping(int row) const { return attempt(row).isStopping; }
    /** Whether `stop` can do something. */
    bool canStop(int row) const;
    /** Requests the end of a run. */
    void stop(int row);
    /** Seconds since the start of a run, or that it took; below 0 if its program wasn't started. */
    double secondsOf(int row) const;
    /** The time limit in seconds that the run has; 0 for none. */
    double timeLimitOf(int row) const { return attempt(row).timeLimit; }
    /** A time as users read it: "0.8 s", "2 min 05 s". */
    static QString timeText(double seconds);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
    /** A run is in progress in that row from now on. */
    void runStarted(int row);

 private:
    struct Attempt {
        int number = 0;  //!< 0 for a run of an earlier session, and for one that is only planned
        std::shared_ptr<const FRunRecord> record{};
        FExpr<FExternComputation> computation{};
        QString earlier{};  //!< where the next run moves the files
        double timeLimit = 0;
        bool isPlanned = false;
        bool isStopping = false;
        bool isSummarized = false;
        bool lacksNumbers = false;  //!< some values are NaN
        QString said{};
        QList<FExpr<FTableData>> tables{};
    };

    const Attempt& attempt(int row) const { return mAttempts[static_cast<std::size_t>(row)]; }
    void follow(FExternComputation* computation);
    void followPlan(FExternComputation* computation);
    void takeRecord(int row, const std::shared_ptr<const FRunRecord>& record);
    /** The row in which the computation waits for its run; -1 if there is none. */
    int waitingRowOf(const FExternComputation* computation) const;
    void add(FExternComputation* computation, const std::shared_ptr<const FRunRecord>& record, int number);
    void addStored();
    void clear();
    void rowChanged(int row);
    void tick();
    /** Reads what runs that have ended have to say, which may take a while for large files. */
    void summarize();
    void summarize(int row);
    void limitNumbers();
    QString stateText(const FRunRecord& record, bool isStopping) const;
    QString textOf(int row, int column) const;

    std::deque<Attempt> mAttempts;
    int mNumber = 0;
    QTimer mClock;
    FQueuedCall mSummarize{[this] { summarize(); }};
};
