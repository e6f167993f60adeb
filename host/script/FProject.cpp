#include "host/script/FProject.h"

#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FSavedFile.h"
#include "host/script/FProjectText.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace {

bool fail(const QString& source, const QString& message, const QString& advice) {
    FLogMsg::error(source, message, advice);
    return false;
}

bool holds(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

}  // namespace

FProject* FProject::instance() {
    // Never destroyed: the history tells it of changes as long as there are any.
    static auto* project = new FProject;
    return project;
}

QString FProject::fullPath(const QString& path) {
    const QFileInfo file(path);
    return file.suffix().isEmpty() ? file.absoluteFilePath() + QStringLiteral(".mrx") : file.absoluteFilePath();
}

bool FProject::isIdle(const char* command) {
    return !FHistory::instance()->inTransaction() ||
           fail(QString::fromLatin1(command),
                QStringLiteral("a project can't be replaced in the middle of a step that can be undone"),
                QStringLiteral("call it in a statement of its own"));
}

void FProject::clearModel() {
    const FHistoryBlocker blocker;
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
    close();
    clearModel();
    return true;
}

bool FProject::open(const QString& path, bool recover) {
    const QString file = fullPath(path);
    const QString source = recover && FAutosave::isNewer(file) ? FAutosave::pathOf(file) : file;
    FProjectText text;
    if (!isIdle("openProject") || !text.load(source)) {
        return false;
    }
    const bool hadNews = FAutosave::isNewer(file);
    create();
    int errors = 0;
    {
        const FHistoryTransaction transaction(QStringLiteral("open project"));
        FMerixCtrl::instance()->setProjectFile(file);
        errors = text.restore();
    }
    FHistory::instance()->clear();
    if (hadNews) {
        tellOfAutosave(file, recover);
    } else if (recover) {
        FLogMsg::warning(file, QStringLiteral("there is no unsaved work to recover; opened as it was saved"));
    }
    use(file, hadNews && recover);
    mIsDamaged = errors > 0;
    return errors == 0 ||
           fail(file, QStringLiteral("%1 errors; what they are about isn't in the open project").arg(errors),
                QStringLiteral("the first save keeps the file as \"%1.damaged\"").arg(file));
}

void FProject::tellOfAutosave(const QString& file, bool recover) const {
    const QString time = QFileInfo(FAutosave::pathOf(file)).lastModified().toString(Qt::ISODate);
    if (recover) {
        FLogMsg::info(file, QStringLiteral("recovered the unsaved work of %1").arg(time),
                      QStringLiteral("save the project to keep it"));
    } else {
        FLogMsg::warning(file,
                         QStringLiteral("there is unsaved work of %1, from a session that didn't end well").arg(time),
                         QStringLiteral("openProject(file, true) recovers it"));
    }
}

void FProject::use(const QString& file, bool hasUnsaved) {
    FMerixCtrl::instance()->setProjectFile(file);
    const FProjectLock::State state = mLock.acquire(file);
    if (state == FProjectLock::State::Held) {
        mAutosave.start(file, hasUnsaved);
    } else if (state == FProjectLock::State::Elsewhere) {
        FLogMsg::warning(file, QStringLiteral("the project is open elsewhere (%1)").arg(mLock.getHolder()),
                         QStringLiteral("to keep changes, save it under another name"));
    }
}

bool FProject::save(const QString& path) {
    const QString& present = FMerixCtrl::instance()->getProjectFile();
    const QString file = path.isEmpty() ? present : fullPath(path);
    if (file.isEmpty()) {
        return fail(QStringLiteral("saveProject"), QStringLiteral("the project has no file yet"),
                    QStringLiteral("give a file name"));
    }
    FProjectLock lock;
    if (!mLock.isHeldOn(file) && lock.acquire(file) == FProjectLock::State::Elsewhere) {
        return fail(file, QStringLiteral("not saved: the project is open elsewhere (%1)").arg(lock.getHolder()),
                    QStringLiteral("save it under another name"));
    }
    const QByteArray bytes = FProjectText::write();
    const bool isOther = !holds(file, bytes);
    const QString fault = isOther ? keepPrevious(file) : QString();
    const QString reason = fault.isEmpty() && isOther ? FSavedFile::write(file, bytes) : fault;
    if (!reason.isEmpty()) {
        return fail(file, QStringLiteral("not saved: %1").arg(reason),
                    QStringLiteral("save it under another name, or in another folder"));
    }
    if (lock.isHeldOn(file)) {
        mLock = std::move(lock);
    }
    mIsDamaged = false;
    mAutosave.stop();
    use(file, false);
    mAutosave.moveForeignAside();
    return true;
}

QString FProject::keepPrevious(const QString& file) const {
    const bool isDamagedFile = mIsDamaged && file == FMerixCtrl::instance()->getProjectFile();
    const QString kept = file + (isDamagedFile ? QStringLiteral(".damaged") : QStringLiteral("~"));
    const QString fault = QFile::exists(file) ? FSavedFile::copy(file, kept) : QString();
    return fault.isEmpty() ? fault : QStringLiteral("can't keep the version before as \"%1\": %2").arg(kept, fault);
}

void FProject::close() {
    mAutosave.stop();
    mLock.release();
    mIsDamaged = false;
    FMerixCtrl::instance()->setProjectFile(QString());
}
