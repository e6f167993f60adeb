#include "host/gui/window/FProjectFiles.h"

#include "host/core/FHold.h"
#include "host/core/FIO.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserInterface.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FMessageCatcher.h"
#include "host/gui/panels/FConsole.h"
#include "host/gui/window/FFileImport.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FRecoveryQuestion.h"
#include "host/run/FPathManager.h"
#include "host/script/FAutosave.h"
#include "host/script/FCmdInput.h"
#include "host/script/FProject.h"
#include "host/script/FUnnamedWork.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

namespace {

const char* const projectFilter = "Projects (*.mrx);;All files (*)";
const char* const scriptFilter = "Scripts (*.merix);;All files (*)";

// A dialog takes the last part of a folder that doesn't exist for a file's name.
QString documentsFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

/** Whether the project is still the present one. */
std::function<bool()> whilePresent() {
    return
        [file = FMerixCtrl::instance()->getProjectFile()] { return FMerixCtrl::instance()->getProjectFile() == file; };
}

QString startFolder() {
    const QString file = FMerixCtrl::instance()->getProjectFile();
    return file.isEmpty() ? documentsFolder() : QFileInfo(file).path();
}

}  // namespace

FProjectFiles::FProjectFiles(FMainWindow& window) : QObject(&window), mWindow(window) {}

// A project can't be replaced while a run writes into its folder.
bool FProjectFiles::isIdle() {
    if (FRunTarget::isAnyRunning()) {
        mWindow.notices().showNotice(
            {QStringLiteral("A run is in progress. Stop it, or wait for its end, before you leave the project."),
             &FRunTarget::isAnyRunning});
        return false;
    }
    return true;
}

bool FProjectFiles::maySpoil() {
    FUserInterface::instance()->commitEdits();
    if (!mWindow.unsavedWork().isThere()) {
        return true;
    }
    const QString file = FMerixCtrl::instance()->getProjectFile();
    constexpr int cancel = 2;
    const int answer =
        FIO::question(nullptr, FMerixCtrl::getApplicationTitle(),
                      QStringLiteral("Save the changes of %1?")
                          .arg(file.isEmpty() ? QStringLiteral("the unnamed project") : QFileInfo(file).fileName()),
                      QStringLiteral("Save"), QStringLiteral("Discard"), QStringLiteral("Cancel"), 0, cancel);
    return answer == 1 || (answer == 0 && save());
}

void FProjectFiles::create() {
    if (isIdle() && maySpoil()) {
        FProject::instance()->create();
    }
}

void FProjectFiles::open() {
    const QString path = FUserInterface::instance()->askOpenFile(QStringLiteral("Open a project"), startFolder(),
                                                                 QString::fromLatin1(projectFilter));
    if (!path.isEmpty()) {
        open(path);
    }
}

void FProjectFiles::open(const QString& path) {
    if (!isIdle() || !maySpoil()) {
        return;
    }
    bool recovers = false;
    if (FAutosave::hasWork(path)) {
        const FRecoveryQuestion::Answer answer = FRecoveryQuestion(path).ask();
        if (answer == FRecoveryQuestion::Answer::Cancel) {
            return;
        }
        recovers = answer == FRecoveryQuestion::Answer::Recover;
    }
    const FMessageCatcher messages;
    const FWaitCursor wait;
    const bool isWhole = FProject::instance()->open(path, recovers);
    const QString present = FMerixCtrl::instance()->getProjectFile();
    const bool isOpen = !present.isEmpty() && present == QFileInfo(path).canonicalFilePath();
    const QString name = QFileInfo(path).fileName();
    if (!isOpen) {
        showFailure(QStringLiteral("%1 couldn't be opened: %2.").arg(name, messages.text()), whilePresent());
        return;
    }
    if (recovers) {
        mWindow.unsavedWork().assume();
    }
    if (!isWhole) {
        showFailure(QStringLiteral("Parts of %1 couldn't be read.").arg(name), whilePresent());
    } else if (!FProject::instance()->getHolder().isEmpty()) {
        mWindow.notices().showNotice(
            {QStringLiteral("%1 is open elsewhere (%2): you can look at it, but neither save nor run it here.")
                 .arg(name, FProject::instance()->getHolder()),
             [] { return !FProject::instance()->getHolder().isEmpty(); }, QStringLiteral("Save under another name…"),
             [this] { saveAs(); }});
    } else {
        mWindow.showStatus(QStringLiteral("Opened %1").arg(name));
    }
}

void FProjectFiles::openUnnamed(const QString& name) {
    if (!isIdle() || !maySpoil()) {
        return;
    }
    const QString age = ageOf(QFileInfo(FAutosave::pathOf(name)).lastModified());
    constexpr int cancel = 2;
    const int answer = FIO::question(
        nullptr, FMerixCtrl::getApplicationTitle(),
        QStringLiteral("There is work from %1 on a project that was never saved.").arg(age),
        QStringLiteral("Recover it"), QStringLiteral("Throw it away"), QStringLiteral("Cancel"), 0, cancel);
    if (answer == 1) {
        FUnnamedWork::remove(name);
        mWindow.refreshStartPage();
    } else if (answer == 0) {
        recoverUnnamed(name);
    }
}

void FProjectFiles::recoverUnnamed(const QString& name) {
    const FMessageCatcher messages;
    const FWaitCursor wait;
    const bool isWhole = FProject::instance()->recoverUnnamed(name);
    const bool isOpen = FProject::instance()->isUnnamed(name);
    if (isOpen) {
        mWindow.unsavedWork().assume();
        mWindow.showFirstConnector();
    }
    if (!isWhole) {
        const QString what = isOpen ? QStringLiteral("Parts of the unsaved work") : QStringLiteral("The unsaved work");
        showFailure(QStringLiteral("%1 couldn't be read: %2.").arg(what, messages.text()), whilePresent());
    }
}

void FProjectFiles::showFailure(const QString& text, const std::function<bool()>& holds) {
    mWindow.notices().showNotice(
        {text, holds, QStringLiteral("Show the messages"), [this] { mWindow.panels().raise(QStringLiteral("log")); }});
}

bool FProjectFiles::save() {
    if (FMerixCtrl::instance()->getProjectFile().isEmpty()) {
        return saveAs();
    }
    return saveTo(QString());
}

bool FProjectFiles::saveTo(const QString& path) {
    const FMessageCatcher messages;
    const bool isSaved = FProject::instance()->save(path);
    if (!isSaved) {
        const QString file = path.isEmpty() ? FMerixCtrl::instance()->getProjectFile() : path;
        showFailure(QStringLiteral("%1: %2.").arg(file, messages.text()),
                    [this] { return mWindow.unsavedWork().isThere(); });
    }
    return isSaved;
}

bool FProjectFiles::saveAs() {
    const QString path = FUserInterface::instance()->askSaveFile(QStringLiteral("Save the project as"), startFolder(),
                                                                 QString::fromLatin1(projectFilter));
    return !path.isEmpty() && saveTo(path);
}

QStringList FProjectFiles::getExamples() {
    const QDir samples(FPathManager::instance()->getSamplesDir());
    QStringList names;
    for (const QString& name : samples.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (samples.exists(name + QStringLiteral("/setup.merix"))) {
            names.append(name);
        }
    }
    return names;
}

void FProjectFiles::openExample(const QString& name) {
    if (!isIdle() || !maySpoil()) {
        return;
    }
    const QString parent =
        FUserInterface::instance()->askFolder(QStringLiteral("Folder for a copy of the example"), documentsFolder());
    if (parent.isEmpty()) {
        return;
    }
    QString folder = QDir(parent).filePath(name);
    for (int number = 2; QFileInfo::exists(folder); ++number) {
        folder = QDir(parent).filePath(QStringLiteral("%1-%2").arg(name, QString::number(number)));
    }
    if (!copyFolder(QDir(FPathManager::instance()->getSamplesDir()).filePath(name), folder)) {
        mWindow.notices().showNotice(
            {QStringLiteral("The example couldn't be copied to %1. Choose a folder that you can write to.")
                 .arg(folder)});
        return;
    }
    FProject::instance()->create();
    if (executeScript(QDir(folder).filePath(QStringLiteral("setup.merix")))) {
        saveTo(QDir(folder).filePath(name + QStringLiteral(".mrx")));
    }
}

bool FProjectFiles::copyFolder(const QString& from, const QString& to) {
    if (!QDir().mkpath(to)) {
        return false;
    }
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = QDir(to).filePath(QDir(from).relativeFilePath(file));
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(file, target)) {
            return false;
        }
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
    return true;
}

void FProjectFiles::executeScript() {
    const QString path = FUserInterface::instance()->askOpenFile(QStringLiteral("Execute a script"), startFolder(),
                                                                 QString::fromLatin1(scriptFilter));
    if (path.isEmpty()) {
        return;
    }
    QObject whileExecuted;
    bool hasPrinted = false;
    connect(&mWindow.panels().get<FConsole>(), &FConsole::printed, &whileExecuted,
            [&hasPrinted] { hasPrinted = true; });
    executeScript(path);
    if (hasPrinted) {
        mWindow.panels().show(QStringLiteral("console"));
    }
}

bool FProjectFiles::executeScript(const QString& path) {
    FCmdInput input;
    if (const QString fault = input.readFile(path); !fault.isEmpty()) {
        mWindow.notices().showNotice({QStringLiteral("%1 can't be read: %2").arg(path, fault)});
        return false;
    }
    const FMessageCatcher messages;
    bool isDone = false;
    const int script = ++mScripts;
    const bool isWhole = mWindow.executeLocked([&] { isDone = input.exec(); });
    if (!isDone) {
        showFailure(QStringLiteral("%1 ended with an error: %2.").arg(QFileInfo(path).fileName(), messages.text()),
                    [this, script] { return mScripts == script; });
    }
    return isDone && isWhole;
}

void FProjectFiles::importSetUps() {
    FFileImport(mWindow).ask(startFolder());
}

QString FProjectFiles::ageOf(const QDateTime& time) {
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    const QDateTime now = QDateTime::currentDateTime();
    const qint64 seconds = time.secsTo(now);
    const auto count = [](qint64 number, const char* unit) {
        const QString word = QString::fromLatin1(unit);
        return number == 1 ? QStringLiteral("1 %1 ago").arg(word) : QStringLiteral("%1 %2s ago").arg(number).arg(word);
    };
    if (seconds < minute) {
        return QStringLiteral("just now");
    }
    if (seconds < hour) {
        return count(seconds / minute, "minute");
    }
    if (time.date() == now.date()) {
        return QStringLiteral("today, %1").arg(time.toString(QStringLiteral("hh:mm")));
    }
    if (time.date().addDays(1) == now.date()) {
        return QStringLiteral("yesterday, %1").arg(time.toString(QStringLiteral("hh:mm")));
    }
    return time.toString(QStringLiteral("yyyy-MM-dd hh:mm"));
}
