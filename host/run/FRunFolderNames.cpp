#include "host/run/FRunFolderNames.h"

#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/design/FDesign.h"
#include "host/run/FExternComputation.h"
#include "host/run/FRunFolder.h"
#include "host/run/FRunStore.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

const QLatin1Char slash('/');

/** The files and folders of an object in a folder, those of the run before and its record included. */
QStringList placesOf(const FManaged& object, const QString& root, const QString& name) {
    if (dynamic_cast<const FDesign*>(&object)) {
        return {root + slash + name};
    }
    QStringList places;
    for (const QString& design : QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString earlier = root + slash + design + QStringLiteral("/.earlier/") + name;
        places += {root + slash + design + slash + name,
                   earlier,
                   FRunStore::file(earlier),
                   FRunFolder::notesFile(earlier),
                   FRunFolder::beforeFile(earlier),
                   FRunFolder::lockFile(earlier)};
    }
    return places;
}

bool isRunning() {
    const auto computations = FObjectManager::instance()->getManaged(FExternComputation::null());
    return std::any_of(computations.begin(), computations.end(), [](const FManaged* object) {
        return !dynamic_cast<const FExternComputation*>(object)->canRun();
    });
}

/** Results and computations follow the files of a folder, which has moved. */
void follow(const QString& from, const QString& to) {
    const auto moved = [&](const QString& path) {
        return path.startsWith(from + slash) ? to + path.mid(from.size()) : QString();
    };
    for (FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        auto* computation = dynamic_cast<FExternComputation*>(object);
        const QString path = computation->getLastRun().folder;
        if (!moved(path).isEmpty()) {
            computation->runMoved(path, moved(path));
        }
    }
    for (const FManaged* object : FObjectManager::instance()->getManaged(FComputationResults::null())) {
        // Without a path of their own, results find their files by the names.
        const QString path = dynamic_cast<const FComputationResults*>(object)->FResults::getResultPath();
        if (!moved(path).isEmpty()) {
            FComputationResults::followFiles(path, moved(path));
        }
    }
}

/** Returns the reason of a failure, for the user. */
QString rename(const FManaged& object, const QString& root, const QString& oldName) {
    const QStringList from = placesOf(object, root, oldName);
    const QStringList to = placesOf(object, root, object.getName());
    for (int i = 0; i < from.size(); ++i) {
        if (QFileInfo::exists(from[i]) && QFileInfo::exists(to[i])) {
            return QStringLiteral("'%1' exists").arg(to[i]);
        }
    }
    for (int i = 0; i < from.size(); ++i) {
        if (!QFileInfo::exists(from[i])) {
            continue;
        }
        if (!QDir().rename(from[i], to[i])) {
            return QStringLiteral("'%1' can't be renamed").arg(from[i]);
        }
        follow(from[i], to[i]);
    }
    return {};
}

}  // namespace

bool FRunFolderNames::hasFolder(const FManaged& object) {
    return dynamic_cast<const FDesign*>(&object) || dynamic_cast<const FExternComputation*>(&object);
}

QString FRunFolderNames::of(const FManaged& object) const {
    return mNames.value(object.getDbId(), object.getName());
}

void FRunFolderNames::nameTaken(const FManaged& object, const QString& root) {
    if (hasFolder(object) && std::any_of(mNames.begin(), mNames.end(), [&object](const QString& name) {
            return name.compare(object.getName(), Qt::CaseInsensitive) == 0;
        })) {
        apply(root);
    }
}

void FRunFolderNames::renamed(const FManaged& object, const QString& oldName, const QString& root) {
    if (!hasFolder(object) || root.isEmpty()) {
        return;
    }
    const int id = object.getDbId();
    const QString folder = mNames.value(id, oldName);
    mNames.remove(id);
    nameTaken(object, root);
    if (folder != object.getName()) {
        mNames.insert(id, folder);
    }
}

void FRunFolderNames::apply(const QString& root) {
    if (mNames.isEmpty()) {
        return;
    }
    const QHash<int, QString> names = mNames;
    const QString busy = isRunning() ? QStringLiteral("a run is in progress") : QString();
    // A path through a folder with the old name is followed as soon as it is renamed.
    for (auto entry = names.begin(); entry != names.end(); ++entry) {
        const FManaged* object = FObjectManager::instance()->find(entry.key());
        if (!object) {
            continue;
        }
        const QString reason = busy.isEmpty() ? rename(*object, root, entry.value()) : busy;
        if (reason.isEmpty()) {
            mNames.remove(entry.key());
        } else {
            FLogMsg::warning(object->getName(),
                             QStringLiteral("The folder of its runs in '%1' is still called '%2': %3")
                                 .arg(root, entry.value(), reason),
                             QStringLiteral("Save the project again when that is changed; otherwise its results won't "
                                            "be found when it is opened"));
        }
    }
}
