#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FNavigator.h"
#include "host/gui/base/FRunTarget.h"
#include "host/gui/window/FScriptExecution.h"
#include "host/gui/window/FSituation.h"
#include "host/gui/window/FUnsavedWork.h"

#include <QMainWindow>
#include <QSet>

#include <functional>
#include <memory>

class FActions;
class FDocumentTabs;
class FFindField;
class FManualWindow;
class FNoticeBar;
class FObjectPage;
class FPageTabs;
class FPanelDocks;
class FProjectFiles;
class FStartPage;
class FTablePanel;
class QLabel;
class QStackedWidget;
class QToolButton;

/**
 * The window of the program: documents in the centre, panels around them, a toolbar with few actions. It shows the
 * model and changes it in steps only. It must be destroyed before the program's application object.
 */
class MERIX_EXPORT FMainWindow : public QMainWindow, public FNavigator {
    Q_OBJECT

 public:
    FMainWindow();
    ~FMainWindow() override;

    FProjectFiles& projectFiles() { return *mpProjectFiles; }
    FActions& actions() { return *mpActions; }
    FDocumentTabs& documents() { return *mpDocuments; }
    FNoticeBar& notices() { return *mpNotices; }
    FRunTarget& runTarget() { return mRunTarget; }
    FUnsavedWork& unsavedWork() { return mUnsaved; }
    FPanelDocks& panels() { return *mpPanels; }
    FSituation situation() const;
    /** Deletes the focused part of the page in front, or else the selected objects. */
    void deleteSelected();

    void focusFind();
    /** Shows results as a document; null for empty ones. */
    FTablePanel* openResults(const FExpr<FResultsGeneric>& results);
    /**
     * Executes a function that executes a script. Between its statements, and while it waits for runs, the window
     * takes no input but Stop. False if the script was stopped.
     */
    bool executeLocked(const std::function<void()>& function);
    /** Ends the run in progress, and the script that is being executed. */
    void stop();
    /** Brings a widget to the front of the panels, pages and tabs that it is in, and gives it the focus. */
    void reveal(QWidget* widget);
    /** Shows a text in Markdown in the help panel. */
    void showHelpText(const QString& markdown);
    /** Shows a page of the documentation that comes with the program, by its path there. */
    void showDocument(const QString& page);
    void showAbout();
    /** Shows the first connector of the project, if there is one. */
    void showFirstConnector();
    void refreshStartPage();

    /** Shows the page of an object, if it has one. */
    void showPage(FManaged* object);

    void showObject(FManaged* object) override;
    void showEntry(FManaged* configuration, const QString& path) override;
    void showFile(const Place& place) override;
    void showTemplate(FManaged* file, int line, int column) override;
    void showResults(const FExpr<FResultsGeneric>& results) override;
    void showResultsOfRun(const FExpr<FResultsGeneric>& present, int run) override;
    void showHelp(const QString& topic) override;
    void showStatus(const QString& text) override;
    void partFocused() override;

 protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    void makeToolbar();
    void makeStatusBar();
    void showProblemCount(int count);
    void listen();
    /** Null if no page is in front. */
    FObjectPage* pageInFront() const;
    void noteFocus();
    /** Brings actions, title and status line up to date, from the event loop. */
    void refresh();
    void showProject(bool isThere);
    bool mayClose();
    bool mayStopScript();
    void lock(bool isLocked);
    void noteEndOfRun(const FManaged* object);

    FRunTarget mRunTarget;
    FUnsavedWork mUnsaved;
    FQueuedCall mRefresh{[this] { refresh(); }};
    FActions* mpActions = nullptr;
    FProjectFiles* mpProjectFiles = nullptr;
    QStackedWidget* mpCentre = nullptr;
    FStartPage* mpStartPage = nullptr;
    FDocumentTabs* mpDocuments = nullptr;
    std::unique_ptr<FPageTabs> mpPages;
    FNoticeBar* mpNotices = nullptr;
    FFindField* mpFind = nullptr;
    FManualWindow* mpManual = nullptr;  //!< from the first page on that is shown
    QToolButton* mpProblems = nullptr;
    QLabel* mpRunState = nullptr;
    std::unique_ptr<FPanelDocks> mpPanels;
    bool mShowsProject = false;
    bool mIsPageFocused = false;
    bool mIsPartFocused = false;  //!< of the page in front, and can be deleted
    FScriptExecution mScript;
    bool mClosesAfterScript = false;
    QSet<const FManaged*> mInProgress;  //!< computations whose run was in progress when they changed last
};
