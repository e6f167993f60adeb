#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FNavigator.h"
#include "host/run/FTableData.h"

#include <QPersistentModelIndex>
#include <QWidget>

class FExternComputation;
class FListView;
class FRunModel;
class FTableModel;
class QBoxLayout;
class QComboBox;
class QLabel;
class QMenu;
class QToolButton;

/**
 * The tables of results, with the state of the run that they come from. The panel of a computation's present results
 * shows those of each further run when it has ended, unless an earlier run of the session was chosen.
 */
class MERIX_EXPORT FTablePanel : public QWidget {
    Q_OBJECT

 public:
    /** @param runs  whose numbers can be shown beside these; outlives the panel */
    FTablePanel(FNavigator& navigator, const FRunModel& runs, const FExpr<FResultsGeneric>& results);

    FTableModel& model() { return *mpModel; }
    /** Shows the numbers of the run before beside these, or no longer. */
    void compare(bool isCompared);
    /** Shows the numbers of a run, by its row, beside these. */
    void compareWith(int run);
    /** Shows the numbers of a run, by its row; -1 for the present ones. */
    void showRun(int run);
    /** Asks for a file, and writes all tables to it. */
    void exportCsv();

    /** A text that is the same for results that the same panel shows; null for empty results. */
    static QString keyOf(const FExpr<FResultsGeneric>& results);
    static QString titleOf(const FExpr<FResultsGeneric>& results);
    /** The present results of a computation; of a project that was just opened, they are read again. */
    static FExpr<FResultsGeneric> presentOf(FExternComputation& computation);

 signals:
    /** The results and their computation are no longer in the model. */
    void gone();

 protected:
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    QWidget* makeHeader();
    FResultsGeneric* results() const;
    /** Reads what isn't read yet, and shows it. */
    void refresh();
    /** Shows other tables, and what they are compared with. */
    void take(const QList<FExpr<FTableData>>& tables);
    /** The rows of runs of the same computation whose numbers are kept, but not those that are given. */
    QList<int> otherRuns(const QList<FExpr<FTableData>>& given) const;
    QString titleOfRun(int run) const;
    void offerRuns();
    void fillRuns(QMenu& menu);
    void compareWith(const QList<FExpr<FTableData>>& tables, const QString& title);
    /** Takes over the tables of another run, in the order of these. */
    void setBefore(const QList<FExpr<FTableData>>& tables, const QString& title);
    void readBefore();
    void showTable();
    void showState();
    void showStateOfEarlier();
    void showPlace(const QModelIndex& index);
    FNumberFlags accepted() const;
    /** All tables, one below the other. */
    QString toCsv() const;

    FNavigator& mNavigator;
    const FRunModel& mRuns;
    FExpr<FExternComputation> mComputation;  //!< whose present results are shown; empty for others
    int mResultsId;                   //!< 0 for present ones; not a handle, which would keep results of earlier runs
    QPersistentModelIndex mShownRun;  //!< in the list of runs; invalid for present results
    QList<FExpr<FTableData>> mTables;
    QList<FExpr<FTableData>> mChosen;  //!< of the run that was chosen; empty for the run before
    QList<FExpr<FTableData>> mBefore;  //!< in the order of `mTables`
    QString mBeforeTitle;
    QBoxLayout* mpHeader = nullptr;
    QLabel* mpSign;
    QLabel* mpState;
    QComboBox* mpRun;
    QComboBox* mpTable;
    QToolButton* mpCompare = nullptr;
    FTableModel* mpModel;
    FListView* mpView = nullptr;
    FQueuedCall mRefresh{[this] { refresh(); }};
};
