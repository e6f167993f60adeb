#include "host/script/FAutosave.h"

#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FSavedFile.h"
#include "host/core/FUserStep.h"
#include "host/script/FProjectText.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qint64 shortestPause = 3000;
/** Saving takes at most this part of the time. */
constexpr qint64 share = 20;

}  // namespace

FAutosave::FAutosave() {
    mTimer.setSingleShot(true);
    QObject::connect(&mTimer, &QTimer::timeout, this, [this] { saveSoon(); });
    const FChanges* changes = FChanges::instance();
    for (const auto signal : {&FChanges::stepDone, &FChanges::stepUndone, &FChanges::stepRedone}) {
        QObject::connect(changes, signal, this, &FAutosave::changed);
    }
    QObject::connect(changes, &FChanges::stepTakenBack, this, &FAutosave::takenBack);
    QObject::connect(changes, &FChanges::statementDone, this, &FAutosave::saveIfDue);
}

// The time doesn't count: a project gets a new one when it is copied or checked out.
bool FAutosave::hasWork(const QString& project) {
    QFile autosave(pathOf(project));
    const bool isSameSize = autosave.size() == QFileInfo(project).size();
    return QFileInfo(autosave).isFile() &&
           !(isSameSize && autosave.open(QIODevice::ReadOnly) && FSavedFile::holds(project, autosave.readAll()));
}

void FAutosave::start(const QString& project, bool recovered, bool isDamaged) {
    mProject = project;
    mIsOwn = recovered;
    mIsRecovered = recovered;
    mIsDamaged = isDamaged;
    removeIfEqual();
    mHasFailed = false;
    mPause = 0;
    if (recovered) {
        save();
    }
}

void FAutosave::stop(bool keep) {
    if (keep && mTimer.isActive()) {
        save();
    }
    mTimer.stop();
    if (mIsOwn && !mIsRecovered && !keep) {
        QFile::remove(pathOf(mProject));
    }
    mProject.clear();
    mIsOwn = false;
}

void FAutosave::saved() {
    mTimer.stop();
    moveForeignAside();
    if (mIsOwn) {
        QFile::remove(pathOf(mProject));
    }
    mIsOwn = false;
    mIsRecovered = false;
    mIsDamaged = false;
}

void FAutosave::changed() {
    if (!mProject.isEmpty()) {
        saveSoon();
    }
}

// Called after each statement of a loop, which may be one long step.
void FAutosave::saveIfDue() {
    if (!mProject.isEmpty() && wait() <= 0 && FHistory::instance()->hasOpenChanges()) {
        save();
        mHasOpenStep = true;
    }
}

void FAutosave::takenBack() {
    if (mHasOpenStep && !mProject.isEmpty()) {
        save();
    }
}

qint64 FAutosave::wait() const {
    return mPause > 0 ? mPause - mSinceSave.elapsed() : 0;
}

void FAutosave::saveSoon() {
    const qint64 wait = this->wait();
    if (wait <= 0 && !FHistory::instance()->inTransaction()) {
        FUserStep::commitEdits();
        save();
    } else if (!mTimer.isActive()) {
        mTimer.start(static_cast<int>(std::max(wait, qint64{100})));
    }
}

void FAutosave::save() {
    mHasOpenStep = false;
    moveForeignAside();
    QElapsedTimer duration;
    duration.start();
    const QString fault = keep(FProjectText::write());
    if (!fault.isEmpty() && !mHasFailed) {
        FLogMsg::warning(pathOf(mProject), QStringLiteral("can't keep unsaved work: %1").arg(fault),
                         QStringLiteral("Save the project yourself, under another name if need be"));
    }
    mHasFailed = !fault.isEmpty();
    mPause = std::max(shortestPause, share * duration.elapsed());
    mSinceSave.start();
}

QString FAutosave::keep(const QByteArray& text) {
    const QString path = pathOf(mProject);
    if (FSavedFile::holds(mProject, text)) {
        mIsOwn = mIsOwn && QFile::exists(path) && !QFile::remove(path);
        return {};
    }
    const QString fault =
        FSavedFile::writeBeside(mProject, path, mIsDamaged ? FProjectText::withNoteOfDamage(text) : text);
    mIsOwn = mIsOwn || fault.isEmpty();
    return fault;
}

void FAutosave::removeIfEqual() const {
    const QString path = pathOf(mProject);
    if (QFileInfo(path).isFile() && !hasWork(mProject)) {
        QFile::remove(path);
    }
}

void FAutosave::moveForeignAside() {
    const QString path = pathOf(mProject);
    if (mProject.isEmpty() || mIsOwn) {
        return;
    }
    removeIfEqual();
    if (!QFile::exists(path)) {
        return;
    }
    const QString aside = FSavedFile::freeName(path + QLatin1Char('~'));
    if (QFile::rename(path, aside)) {
        FLogMsg::info(mProject, QStringLiteral("unsaved work of an earlier session that nobody recovered is kept"),
                      QStringLiteral("It is in \"%1\"; remove it when you no longer need it").arg(aside));
    }
}
