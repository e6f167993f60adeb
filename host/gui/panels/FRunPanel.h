#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FNavigator.h"

#include <QWidget>

class FListView;
class FRunModel;
class FRunTail;
class QSplitter;
class QTabWidget;
class QTextBrowser;
class QToolButton;
class QUrl;

/** The runs of this session, and what the selected one has written and said. */
class MERIX_EXPORT FRunPanel : public QWidget {
    Q_OBJECT

 public:
    explicit FRunPanel(FNavigator& navigator);
    ~FRunPanel() override;

    FRunModel& model() { return *mpModel; }

 private:
    QWidget* makeDetails();
    /** The selected row; -1 if there is none. */
    int current() const;
    void showCurrent();
    void updateButtons();
    /** Why the numbers of a run whose computation is there can't be shown; empty if they can. */
    QString whyNoResults(int row) const;
    void rowsChanged(int first, int last);
    void showBar(int row);
    void runAgain();
    void openFolder();
    void showResults();
    void follow(const QUrl& link);
    QString detailsOf(int row) const;

    FNavigator& mNavigator;
    FRunModel* mpModel;
    FListView* mpView;
    QSplitter* mpSplitter;
    QTabWidget* mpTabs = nullptr;
    QTextBrowser* mpText = nullptr;
    FRunTail* mpOutput = nullptr;
    FRunTail* mpErrors = nullptr;
    QToolButton* mpStop = nullptr;
    QToolButton* mpAgain = nullptr;
    QToolButton* mpFolder = nullptr;
    QToolButton* mpResults = nullptr;
};
