#pragma once

#include "genericintegration/setup/FConnectorSetUp.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FQueuedCall.h"
#include "host/core/FString.h"
#include "host/design/FResultsFileName.h"
#include "host/gui/base/FSoftConBase.h"

#include <QDateTime>
#include <QPointer>

class FGenIntCompSignalRapper;
class FNavigator;
class FObjectPage;
class FSoftConScene;
class FSoftConView;
class QPushButton;

/**
 * The software connector of a program with windows: one picture of a set-up, with a tab for each template. It saves and
 * changes the same as FConnectorRecord.
 */
class FSoftwareConnector : public FClass<FSoftwareConnector, FSoftConBase> {
    Q_OBJECT

 public:
    static FClassData mClass;
    static const FObject* initPrototype();

    // Titles of the areas, and names of the sizes of items.
    static const QString smInputAreaLabel;
    static const QString smOutputAreaLabel;
    static const QString smExportAreaLabel;
    static const QString smImportAreaLabel;
    static const QString smIconSize_Largest;
    static const QString smIconSize_Medium;
    static const QString smIconSize_Smallest;

    explicit FSoftwareConnector(const QString& name = QString());
    ~FSoftwareConnector() override;
    static FSoftwareConnector* create(const QString& name, const FExpr<FExternComputation>& computation);
    /** Asks for a result of a connector; gives the script text that reads its path, or nothing. */
    static FExpr<FString> chooseResultsFile();

    FConnectorSetUp& setUp() { return mSetUp; }
    FSoftConView* getView() const { return mView; }
    FSoftConScene* getScene() const { return mpScene; }

    /** The connector is shown in a window from now on; null: no longer. */
    void setNavigator(FNavigator* navigator);

    void setItemSizeStr(const QString& text);
    QString getItemSizeStr() const;
    /** Takes over the size that the user chose last. Call it in a step. */
    void useLastItemSize();
    /** Shows the first input template, or the overview if there is none. */
    void gotoFirstTemplate();
    const QString& getResultsPath() const { return mSetUp.mResultsPath; }
    void setResultsPath(const QString& path);
    void setOverviewChecked(bool isChecked);
    /** Whether a run has locked the items and pages. */
    bool isLocked() const { return mIsLocked; }
    void renameTab(const FExpr<FGenIntFile>& file);
    /** Shows the tab of a template; null if the definition hasn't the template. */
    FObjectPage* showPageOf(const FManaged* file);

    // ---- adding items without a dialog ----
    /** @param type  null prototype of what the files become; see FSoftConScene::createItems */
    void addFiles(const QStringList& paths, const FExpr<FObject>& type);
    /** Null if that failed. */
    FExpr<FResultsFileName> addOutputFile(const QString& path);
    void addInputTemplateFromString(const QString& content, const QString& fileName);
    FExpr<FGenIntResultsFile> addOutputTemplateFromString(const QString& content, const QString& fileName);

    // ---- FConnectorInterface ----
    FExpr<FExternComputation> getComputation() const override { return mSetUp.mComputation; }
    void setComputation(const FExpr<FExternComputation>& computation) override { mSetUp.setComputation(computation); }
    bool containsComputation(const FExpr<FExternComputation>& computation) const override {
        return mSetUp.containsComputation(computation);
    }
    FDefinition* getDefinition() const override { return mSetUp.getDefinition(); }
    void disableGui(bool disable) override;
    void showConnector() override;
    void refreshEditors(const FManaged* file) override;
    void refreshCommandFileEditors() override;
    FManaged* asManaged() override { return this; }
    QList<FManaged*> getParts() const override;
    FConnectorInterface* createConnector(const QString& name,
                                         const FExpr<FExternComputation>& computation) const override;

    bool doUpdate() const override;

 public slots:
    int addNewTab(FExpr<FGenIntFile> pFile);
    void removeOldTab(FExpr<FGenIntFile> pFile);
    void closeTab(int index);
    void gotoTab(FExpr<FGenIntFile> pFile);
    void gotoOverview();
    void gotFocus();
    void prepareToScanForResults();
    void scanForResults(bool scan = false);
    void connectOtherConnector();

 protected:
    bool updatesSuppliersItself() const override { return true; }
    void leaveModel() override;
    void enterModel() override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    void init();
    void follow();
    void listenToRuns();
    void stopListening();
    void unlockIfIdle();
    void showAgain();
    void takeItemSize(unsigned int size);
    /** The templates of the set-up; none without a definition. */
    QList<FExpr<FGenIntFile>> files() const;
    void addMissingTabs();
    void removeStaleTabs();
    void showOverviewButton();
    FObjectPage* pageAt(int index) const;
    /** The tab of a file; -1 if there is none. */
    int tabOf(const FManaged* file) const;
    void removePage(int index);
    void addTemplate(const FExpr<FGenIntFile>& file, const QString& content, const QString& fileName);
    /** Links an input file to a result. False if the walk over further ones is to end. */
    bool link(const QString& expression);

    mutable FConnectorSetUp mSetUp;
    FSoftConView* mView = nullptr;
    FSoftConScene* mpScene = nullptr;
    QPushButton* mOverviewButton = nullptr;
    FNavigator* mpNavigator = nullptr;
    QDateTime mLastRunStart = QDateTime::currentDateTime();  //!< files from before are no results
    QPointer<const FGenIntCompSignalRapper> mRuns;
    QMetaObject::Connection mRunChanged;
    bool mIsLocked = false;
    QPointer<QWidget> mFocusBefore;  //!< had the focus when a run locked the connector
    bool mWasShown = false;          //!< in the window when it left the model
    FQueuedCall mShowAgain{[this] { showAgain(); }};
};
