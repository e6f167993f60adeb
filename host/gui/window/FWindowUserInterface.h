#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

class FMainWindow;
class QWidget;

/** Questions, dialogs and views of the program, shown by its window. */
class MERIX_EXPORT FWindowUserInterface : public FUserInterface {
 public:
    explicit FWindowUserInterface(FMainWindow& window) : mWindow(window) {}

    bool hasGui() const override { return true; }
    int ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) override;
    int warn(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) override;
    void tell(const QString& title, const QString& text) override;
    QString askOpenFile(const QString& caption, const QString& startPath, const QString& filter) override;
    QStringList askOpenFiles(const QString& caption, const QString& startPath) override;
    QString askSaveFile(const QString& caption, const QString& startPath, const QString& filter) override;
    QString askFolder(const QString& caption, const QString& startPath) override;
    void commitEdits() override;
    bool mayRun() override;
    void showTexts(const QString& title, const QMap<QString, QString>& texts) override;
    QObject* getObjectEditor(const FExprBase& object) override;
    void showPage(FManaged* object) override;
    void highlight(const QList<FExprBase>& objects) override;
    int getScreenHeight() const override;
    void setClipboardText(const QString& text) override;
    void reinitializeEditor(bool all) override;
    void hold(What what, bool isHeld) override;

 private:
    /** The window of a new dialog: the dialog that blocks the others, else the main window. */
    QWidget* parent() const;

    FMainWindow& mWindow;
};
