#include "host/script/FProject.h"

#include "host/core/FChanges.h"
#include "host/core/FFile.h"
#include "host/core/FHistory.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FSavedFile.h"
#include "host/core/FUserStep.h"
#include "host/script/FProjectText.h"
#include "host/script/FUnnamedWork.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool fail(const QString& source, const QString& message, const QString& advice) {
    FLogMsg::error(source, message, advice);
    return false;
}

/** When the unsaved work was kept. */
QString timeOfWork(const QString& project) {
    const QDateTime time = QFileInfo(FAutosave::pathOf(project)).lastModified();
    const bool isOlder = time < QFileInfo(project).lastModified();
    return time.toString(Qt::ISODate) + (isOlder ? QStringLiteral(" (the project is newer)") : QString());
}

}  // namespace

FProject* FProject::instance() {
    // Never destroyed: its autosave listens to changes as long as there are any.
    static auto* project = new FProject;
    return project;
}

QString FProject::withEnding(const QString& path) {
    const QString ending = QStringLiteral(".mrx");
    return path.isEmpty() || path.endsWith(ending) ? path : path + ending;
}

bool FProject::isIdle(const char* command) {
    return !FHistory::instance()->inTransaction() ||
           fail(QString::fromLatin1(command),
                QStringLiteral("a project can't be replaced in the middle of a step that can be undone"),
                QStringLiteral("Call it in a statement of its own"));
}

void FProject::clearModel() {
    const FHistoryBlocker blocker;
    // Nothing is evaluated while the model is taken apart.
    const FImmediateUpdateBlocker updates;
    const QList<FManaged*> objects = FObjectManager::instance()->getManaged(FManaged::null());
    const QList<FExpr<FManaged>> handles(objects.begin(), objects.end());
    for (auto object = handles.rbegin(); object != handles.rend(); ++object) {
        const bool isUsers = *object && (*object)->isInUserConfig() && !(*object)->isInProject();
        if (*object && !(*object)->isDefault() && !isUsers) {
            FManaged::destroy(object->ptr(), true);
        }
    }
    FHistory::instance()->clear();
    FObjectManager::instance()->restartIds();
}

bool FProject::create() {
    if (!isIdle("newProject")) {
        return false;
    }
    clear();
    if (mKeepsUnnamed) {
        startUnnamed(FUnnamedWork::newName(), false);
    }
    return true;
}

void FProject::clear() {
    close(false);
    clearModel();
}

void FProject::keepUnnamed(bool isKept) {
    mKeepsUnnamed = isKept;
    if (isKept && FMerixCtrl::instance()->getProjectFile().isEmpty()) {
        startUnnamed(FUnnamedWork::newName(), false);
    }
}

void FProject::startUnnamed(const QString& name, bool recovered) {
    if (!name.isEmpty() && !FMerixCtrl::instance()->isReadOnly() && mLock.acquire(name) == FProjectLock::State::Held) {
        mAutosave.start(name, recovered, mIsDamaged);
    }
}

bool FProject::recoverUnnamed(const QString& name) {
    const QString source = FAutosave::pathOf(name);
    FProjectText text;
    if (!isIdle("newProject") || !text.load(source)) {
        return false;
    }
    clear();
    const int errors = text.restore();
    if (errors > 0) {
        keepDamaged(name, source);
    }
    mIsDamaged = text.hasNoteOfDamage();
    startUnnamed(name, true);
    return errors == 0;
}

bool FProject::open(const QString& path, bool recover) {
    // The file itself, so that it has one lock and one folder of results, whatever link names it.
    const QString file = FFile::realPath(path);
    const bool hasNews = FAutosave::hasWork(file);
    const bool isOwn = mAutosave.isOwnOf(file);
    const QString news = timeOfWork(file);
    const QString source = recover && hasNews ? FAutosave::pathOf(file) : file;
    FProjectText text;
    if (!isIdle("openProject") || !text.load(source)) {
        return false;
    }
    const Stamp stamp = stampOf(file);
    clear();
    FMerixCtrl::instance()->setProjectFile(file);
    const int errors = text.restore();
    if (errors > 0 && source != file) {
        keepDamaged(file, source);
    }
    mIsDamaged = source == file ? errors > 0 : text.hasNoteOfDamage();
    use(file, recover && hasNews);
    mStamp = stamp;
    emit FChanges::instance()->projectOpened(file);
    if (recover && !hasNews) {
        FLogMsg::warning(file, QStringLiteral("there is no unsaved work to recover; opened as it was saved"));
    } else if (recover) {
        FLogMsg::info(file, QStringLiteral("recovered the unsaved work of %1").arg(news),
                      QStringLiteral("Save the project to keep it"));
    } else if (hasNews && !isOwn && !isOpenElsewhere(file)) {
        FLogMsg::warning(
            file, QStringLiteral("there is unsaved work of %1, from a session that didn't end well").arg(news),
            QStringLiteral("Recover it with openProject(file, true), or remove \"%1\"").arg(FAutosave::pathOf(file)));
    }
    return errors == 0 || fail(source,
                               errors == 1 ? QStringLiteral("1 error; what it concerns was not loaded")
                                           : QStringLiteral("%1 errors; what they concern was not loaded").arg(errors),
                               QStringLiteral("Saving keeps what couldn't be read as \"%1.damaged\"").arg(file));
}

// A process that only reads takes no lock.
bool FProject::isOpenElsewhere(const QString& file) const {
    return !mLock.getHolder().isEmpty() || (!mLock.isHeldOn(file) && !FProjectLock::holderOf(file).isEmpty());
}

FProject::Stamp FProject::stampOf(const QString& file) {
    const QFileInfo info(file);
    return info.exists() ? Stamp{info.lastModified(), info.size()} : Stamp();
}

void FProject::keepDamaged(const QString& file, const QString& source) {
    const QString kept = FSavedFile::freeName(file + QStringLiteral(".damaged"));
    const QString fault = FSavedFile::keep(source, kept);
    if (!fault.isEmpty()) {
        FLogMsg::error(kept, QStringLiteral("can't keep what couldn't be read: %1").arg(fault),
                       QStringLiteral("Copy \"%1\" before you save").arg(source));
    }
}

void FProject::use(const QString& file, bool recovered) {
    FMerixCtrl::instance()->setProjectFile(file);
    if (FMerixCtrl::instance()->isReadOnly()) {
        return;
    }
    switch (mLock.acquire(file)) {
        case FProjectLock::State::Held:
            startAutosave(file, recovered);
            break;
        case FProjectLock::State::Elsewhere:
            FLogMsg::warning(file, QStringLiteral("the project is open elsewhere (%1)").arg(mLock.getHolder()),
                             QStringLiteral("To keep changes or to run something, save it under another name"));
            break;
        case FProjectLock::State::None:
            FLogMsg::warning(file, QStringLiteral("nothing can be written in its folder, so unsaved work isn't kept"),
                             QStringLiteral("To keep changes, save it in another folder"));
            break;
    }
}

bool FProject::mayWrite(const QString& file, FProjectLock& lock) const {
    const QString source = QStringLiteral("saveProject");
    const QString other = QStringLiteral("Save it under another name");
    if (file.isEmpty()) {
        return fail(source, QStringLiteral("the project has no file yet"), QStringLiteral("Give a file name"));
    }
    const QFileInfo info(file);
    if (info.isDir() || info.fileName() == QLatin1String(".mrx")) {
        return fail(source, QStringLiteral("\"%1\" names a folder").arg(file), QStringLiteral("Give a file name"));
    }
    if (!mLock.isHeldOn(file) && lock.acquire(file) == FProjectLock::State::Elsewhere) {
        return fail(file,
                    QStringLiteral("the project is open elsewhere (%1), and isn't saved here").arg(lock.getHolder()),
                    other);
    }
    const bool isPresent = file == FMerixCtrl::instance()->getProjectFile();
    return !isPresent || !info.exists() || mStamp == stampOf(file) ||
           fail(file,
                QStringLiteral(
                    "another program has changed the file since it was opened here, and the project isn't saved"),
                other);
}

bool FProject::save(const QString& path) {
    FUserStep::commitEdits();
    const QString file = path.isEmpty() ? FMerixCtrl::instance()->getProjectFile() : FFile::realPath(withEnding(path));
    if (FMerixCtrl::instance()->isReadOnly()) {
        FMerixCtrl::instance()->setProjectFile(file);
        return true;
    }
    FProjectLock lock;
    if (!mayWrite(file, lock)) {
        return false;
    }
    const QString reason = write(file);
    if (!reason.isEmpty()) {
        return fail(file, QStringLiteral("it can't be written: %1").arg(reason),
                    QStringLiteral("Save it under another name, or in another folder"));
    }
    const bool isTaken = lock.isHeldOn(file);
    const bool isOther = file != FMerixCtrl::instance()->getProjectFile();
    if (isTaken) {
        mLock = std::move(lock);
    }
    mIsDamaged = false;
    mStamp = stampOf(file);
    if (isTaken || isOther) {
        if (FMerixCtrl::instance()->getProjectFile().isEmpty()) {
            mAutosave.saved();  // what was recovered is no longer needed
        }
        mAutosave.stop(false);
        use(file, false);
    }
    mAutosave.saved();
    emit FChanges::instance()->projectSaved(file);
    return true;
}

void FProject::takeOverIfFree() {
    const QString& file = FMerixCtrl::instance()->getProjectFile();
    if (!mLock.getHolder().isEmpty() && mLock.acquire(file) == FProjectLock::State::Held) {
        startAutosave(file, false);
    }
}

void FProject::startAutosave(const QString& file, bool recovered) {
    if (mKeepsWork) {
        mAutosave.start(file, recovered, mIsDamaged);
    }
}

QString FProject::write(const QString& file) const {
    QString fault;
    const QByteArray bytes = FProjectText::write(&fault);
    if (!fault.isEmpty() || FSavedFile::holds(file, bytes)) {
        return fault;
    }
    return FSavedFile::write(file, bytes, [this, &file] { return keepPrevious(file); });
}

QString FProject::keepPrevious(const QString& file) const {
    if (!QFile::exists(file)) {
        return {};
    }
    const bool isDamagedFile = mIsDamaged && file == FMerixCtrl::instance()->getProjectFile();
    const QString kept =
        isDamagedFile ? FSavedFile::freeName(file + QStringLiteral(".damaged")) : file + QLatin1Char('~');
    const QString fault = FSavedFile::keep(file, kept);
    return fault.isEmpty() ? fault : QStringLiteral("can't keep the version before as \"%1\": %2").arg(kept, fault);
}

void FProject::close(bool keepUnsaved) {
    mAutosave.stop(keepUnsaved);
    mLock.release();
    mIsDamaged = false;
    mStamp = Stamp();
    FMerixCtrl::instance()->setProjectFile(QString());
    emit FChanges::instance()->projectClosed();
}
