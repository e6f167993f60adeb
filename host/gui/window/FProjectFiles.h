#pragma once

#include "host/core/FExport.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class FMainWindow;

/** Creates, opens and saves projects for the window, with the questions that prevent a loss of data. */
class MERIX_EXPORT FProjectFiles : public QObject {
 public:
    explicit FProjectFiles(FMainWindow& window);

    void create();
    void open();
    void open(const QString& path);
    /** Offers the unsaved work on a project without a file, by its name in FUnnamedWork. */
    void openUnnamed(const QString& name);
    /** False if the user cancelled, or if the project couldn't be saved. */
    bool save();
    bool saveAs();
    /** Copies an example into a folder that the user chooses, and opens the copy. */
    void openExample(const QString& name);
    /** Executes a script that the user chooses, each statement as a step. */
    void executeScript();
    bool executeScript(const QString& path);
    /** Imports set-ups from a file that the user chooses. */
    void importSetUps();
    /** Whether the present project may be given up: it has no unsaved work, or the user has saved or discarded it. */
    bool maySpoil();

    static QStringList getExamples();
    /** How long ago a time was, in words. */
    static QString ageOf(const QDateTime& time);

 private:
    bool isIdle();
    void recoverUnnamed(const QString& name);
    /** Saves, and shows the reason if that fails. An empty path is that of the project. */
    bool saveTo(const QString& path);
    /** Shows a notice that leads to the messages, as long as it holds. */
    void showFailure(const QString& text, const std::function<bool()>& holds);
    static bool copyFolder(const QString& from, const QString& to);

    FMainWindow& mWindow;
    int mScripts = 0;  //!< how many were executed
};
