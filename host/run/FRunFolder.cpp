#include "host/run/FRunFolder.h"

#include "host/run/FSafePath.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <functional>

namespace {

// The only character that file names can't contain.
constexpr char separator = '\0';

bool isFolder(const QFileInfo& entry) {
    return entry.isDir() && !entry.isSymLink();
}

bool isThere(const QFileInfo& entry) {
    return entry.exists() || entry.isSymLink();
}

}  // namespace

FRunFolder::FRunFolder(const QString& folder, const QString& earlier)
    : mFolder(QDir::cleanPath(folder) + QLatin1Char('/')), mEarlier(QDir::cleanPath(earlier) + QLatin1Char('/')) {}

QHash<QString, FRunFolder::Stamp> FRunFolder::list() const {
    QHash<QString, Stamp> entries;
    QDirIterator walk(mFolder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString name = walk.next().mid(mFolder.size());
        const QFileInfo entry = walk.fileInfo();
        // A folder's time changes with its contents; only its existence counts.
        entries.insert(name, isFolder(entry) ? Stamp{-1, {}} : Stamp{entry.size(), entry.lastModified()});
    }
    return entries;
}

QStringList FRunFolder::readNotes() const {
    QFile notes(QDir::cleanPath(mEarlier) + QStringLiteral(".left"));
    if (!notes.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList names;
    for (const QByteArray& name : notes.readAll().split(separator)) {
        names.append(QString::fromUtf8(name));
    }
    return names;
}

// If one of these folders were a link, the folder that it points to would be emptied.
void FRunFolder::emptyEarlier() const {
    const QString earlier = QDir::cleanPath(mEarlier);
    if (FSafePath::removeLink(QFileInfo(earlier).path()) && FSafePath::removeLink(earlier)) {
        QDir(earlier).removeRecursively();
    }
}

bool FRunFolder::staysInside(const QStringList& named, QString& reason) const {
    const QFileInfo folder(QDir::cleanPath(mFolder));
    if (folder.isSymLink()) {
        reason = QStringLiteral(
                     "The folder of the run, '%1', is a link to '%2', whose files would be moved and replaced. "
                     "Remove the link.")
                     .arg(folder.filePath(), folder.symLinkTarget());
        return false;
    }
    const auto out = std::find_if(named.begin(), named.end(), [this](const QString& name) {
        return !FSafePath::leadsOut(name) && FSafePath::leadsOut(mFolder, name);
    });
    if (out == named.end()) {
        return true;
    }
    reason = QStringLiteral(
                 "'%1' would be outside the folder of the run, '%2': a folder in its path is a link. Remove the link.")
                 .arg(*out, mFolder);
    return false;
}

bool FRunFolder::moveAside(const QStringList& named, QString& reason) {
    if (!staysInside(named, reason)) {
        return false;
    }
    emptyEarlier();
    if (!QDir().mkpath(mFolder)) {
        reason = QStringLiteral("The folder '%1' can't be created. Check the permissions of the folders above it.")
                     .arg(mFolder);
        return false;
    }
    QStringList folders;
    for (const QString& name : named + readNotes()) {
        const QFileInfo entry(mFolder + name);
        if (name.isEmpty() || FSafePath::leadsOut(mFolder, name) || !isThere(entry)) {
            continue;
        }
        if (isFolder(entry)) {
            folders.append(name);
        } else if (!moveFile(name, reason)) {
            return false;
        }
    }
    removeEmptyFolders(folders);
    mBefore = list();
    return true;
}

bool FRunFolder::moveFile(const QString& name, QString& reason) const {
    const QString target = mEarlier + name;
    QFile file(mFolder + name);
    if (QDir().mkpath(QFileInfo(target).path()) && file.rename(target)) {
        return true;
    }
    reason = QStringLiteral(
                 "'%1' is left from an earlier run and can't be moved to '%2' (%3). Close the program that has "
                 "it open, or remove it.")
                 .arg(mFolder + name, target, file.errorString());
    return false;
}

void FRunFolder::removeEmptyFolders(QStringList folders) const {
    // Deepest first; one that isn't empty stays.
    std::sort(folders.begin(), folders.end(), std::greater<>());
    for (const QString& folder : qAsConst(folders)) {
        QDir().rmdir(mFolder + folder);
    }
}

void FRunFolder::noteLeft() const {
    if (!mBefore) {
        return;
    }
    QByteArrayList names;
    const QHash<QString, Stamp> now = list();
    for (auto entry = now.begin(); entry != now.end(); ++entry) {
        const auto before = mBefore->find(entry.key());
        if (before == mBefore->end() || !(*before == *entry)) {
            names.append(entry.key().toUtf8());
        }
    }
    // Not with QSaveFile, which waits for the disk: that takes longer than many runs, and an incomplete list does no
    // harm.
    QFile notes(QDir::cleanPath(mEarlier) + QStringLiteral(".left"));
    if (QDir().mkpath(QFileInfo(notes.fileName()).path()) && FSafePath::openForWriting(notes)) {
        notes.write(names.join(separator));
    }
}
