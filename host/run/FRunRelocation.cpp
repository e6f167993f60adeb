#include "host/run/FRunRelocation.h"

#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/run/FExternComputation.h"
#include "host/run/FFolderMove.h"
#include "host/run/FPathManager.h"
#include "host/run/FRunFolder.h"
#include "host/run/FRunStore.h"
#include "host/run/FSafePath.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

const QLatin1Char slash('/');

QString earlierOf(const QString& root, const QString& design, const QString& computation) {
    return root + slash + design + QStringLiteral("/.earlier/") + computation;
}

QStringList filesIn(const QString& folder) {
    QStringList names;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        names.append(walk.next().mid(folder.size() + 1));
    }
    return names;
}

bool isInProgress(const FComputationResults& results) {
    const std::shared_ptr<const FRunRecord> run = results.getRun();
    return run && !run->isOver();
}

}  // namespace

// Only folders that results of the model refer to: others may be left from another project of this session.
void FRunRelocation::moveAll() const {
    QStringList places;
    for (FManaged* object : FObjectManager::instance()->getManaged(FComputationResults::null())) {
        const auto* results = dynamic_cast<const FComputationResults*>(object);
        const QString path = results->getResultPath();
        const QString place =
            path.startsWith(mFrom + slash) ? path.mid(mFrom.size() + 1, path.size() - mFrom.size() - 2) : QString();
        if (place.count(slash) == 1 && !isInProgress(*results) && !places.contains(place) &&
            QDir(mFrom + slash + place).exists()) {
            places.append(place);
        }
    }
    for (const QString& place : qAsConst(places)) {
        const QString design = place.section(slash, 0, 0);
        const QString computation = place.section(slash, 1);
        const QString reason = moveRun(design, computation);
        if (!reason.isEmpty()) {
            FLogMsg::warning(computation,
                             QStringLiteral("The folder of its run stays in '%1', since it can't be moved beside the "
                                            "project: %2")
                                 .arg(mFrom + slash + place, reason),
                             QStringLiteral("Run it again"));
        }
        removeEmptyFolders(design);
    }
}

QString FRunRelocation::moveRun(const QString& design, const QString& computation) const {
    const QString from = mFrom + slash + design + slash + computation;
    const QString to = mTo + slash + design + slash + computation;
    const QString earlier = earlierOf(mTo, design, computation);
    FComputationResults::followFiles(to + slash, earlier + slash);
    FRunFolder folder(to, earlier);
    QString reason;
    if (!folder.moveAside(filesIn(from), reason)) {
        return reason;
    }
    reason = FFolderMove::move(from, to);
    if (!reason.isEmpty()) {
        return reason;
    }
    moveNotes(earlierOf(mFrom, design, computation), earlier);
    FComputationResults::followFiles(from + slash, to + slash);
    for (FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        dynamic_cast<FExternComputation*>(object)->runMoved(from + slash, to + slash);
    }
    moveEarlier(earlierOf(mFrom, design, computation), earlier);
    return {};
}

// Without them, the state of the folder before stays recorded: the next run then moves all that is new.
void FRunRelocation::moveNotes(const QString& from, const QString& to) {
    bool isComplete = true;
    for (const auto& file : {&FRunFolder::notesFile, &FRunStore::file}) {
        QFile source(file(from));
        const bool isMoved =
            source.open(QIODevice::ReadOnly) && FSafePath::replace(file(to), source.readAll()).isEmpty();
        isComplete = isMoved && source.remove() && isComplete;
    }
    if (isComplete) {
        QFile::remove(FRunFolder::beforeFile(to));
    }
    QFile::remove(FRunFolder::lockFile(from));
}

// One that is there contains files of the run that has just moved aside.
void FRunRelocation::moveEarlier(const QString& from, const QString& to) {
    if (QDir(from).exists() && !QFileInfo::exists(to) && FFolderMove::move(from, to).isEmpty()) {
        FComputationResults::followFiles(from + slash, to + slash);
    }
}

void FRunRelocation::removeEmptyFolders(const QString& design) const {
    const QString folder = mFrom + slash + design;
    for (const QString& path : {folder + QStringLiteral("/.earlier"), folder, mFrom}) {
        QDir().rmdir(path);
    }
}
