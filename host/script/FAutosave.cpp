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

bool FAutosave::isNewer(const QString& project) {
    const QFileInfo autosave(pathOf(project));
    return autosave.exists() && autosave.lastModified() >= QFileInfo(project).lastModified();
}

void FAutosave::start(const QString& project, bool recovered) {
    mProject = project;
    mIsOwn = recovered;
    mIsRecovered = recovered;
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
    const QString fault = FSavedFile::writeBeside(mProject, pathOf(mProject), FProjectText::write());
    if (!fault.isEmpty() && !mHasFailed) {
        FLogMsg::warning(pathOf(mProject), QStringLiteral("can't keep unsaved work: %1").arg(fault),
                         QStringLiteral("save the project yourself, under another name if need be"));
    }
    mHasFailed = !fault.isEmpty();
    mIsOwn = mIsOwn || fault.isEmpty();
    mPause = std::max(shortestPause, share * duration.elapsed());
    mSinceSave.start();
}

void FAutosave::moveForeignAside() {
    const QString path = pathOf(mProject);
    if (mProject.isEmpty() || mIsOwn || !QFile::exists(path)) {
        return;
    }
    const QString aside = FSavedFile::freeName(path + QLatin1Char('~'));
    if (QFile::rename(path, aside)) {
        FLogMsg::info(mProject, QStringLiteral("unsaved work of an earlier session that nobody recovered is kept"),
                      QStringLiteral("it is in \"%1\"; remove it when you no longer need it").arg(aside));
    }
}
