#include "host/run/FRunFolder.h"

#include "host/core/FFile.h"
#include "host/run/FSafePath.h"

#include <QDateTime>
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

/** What is in the way of a folder, or the folder that it can't be created in. */
QString obstacleOf(const QString& folder) {
    QString level = folder;
    while (!isThere(QFileInfo(level)) && level != QFileInfo(level).path()) {
        level = QFileInfo(level).path();
    }
    return QFileInfo(level).isDir() ? QStringLiteral("check the permissions of '%1'").arg(level)
                                    : QStringLiteral("'%1' is no folder, remove it").arg(level);
}

/** Programs may write-protect the folders that they leave; nothing in them could be moved. */
void makeWritable(const QString& folder) {
    constexpr auto own = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    const QFileDevice::Permissions present = QFile::permissions(folder);
    if ((present & own) != own) {
        QFile::setPermissions(folder, present | own);
    }
}

}  // namespace

FRunFolder::FRunFolder(const QString& folder, const QString& earlier)
    : mFolder(QDir::cleanPath(folder) + QLatin1Char('/')), mEarlier(QDir::cleanPath(earlier)) {}

// ---- the state of the folder ----

FRunFolder::Entries FRunFolder::list() const {
    Entries entries;
    QDirIterator walk(mFolder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString name = walk.next().mid(mFolder.size());
        const QFileInfo entry = walk.fileInfo();
        entries.insert(name,
                       isFolder(entry) ? Stamp{-1, 0} : Stamp{entry.size(), entry.lastModified().toMSecsSinceEpoch()});
    }
    return entries;
}

QStringList FRunFolder::changes(const Entries& before, const Entries& now) {
    QStringList names;
    for (auto entry = now.begin(); entry != now.end(); ++entry) {
        const auto known = before.find(entry.key());
        if (known == before.end() || !(*known == *entry)) {
            names.append(entry.key());
        }
    }
    return names;
}

// Three texts for each entry: name, size, time.
QString FRunFolder::writeBefore() const {
    QByteArrayList texts;
    for (auto entry = mBefore->begin(); entry != mBefore->end(); ++entry) {
        texts << entry.key().toUtf8() << QByteArray::number(entry->size) << QByteArray::number(entry->changed);
    }
    return FSafePath::replace(beforeFile(mEarlier), texts.join(separator));
}

std::optional<FRunFolder::Entries> FRunFolder::readBefore() const {
    QFile file(beforeFile(mEarlier));
    if (!FFile::openOrdinary(file).isEmpty()) {
        return {};
    }
    const QByteArrayList texts = file.readAll().split(separator);
    Entries entries;
    for (int at = 0; at + 2 < texts.size(); at += 3) {
        entries.insert(QString::fromUtf8(texts[at]), {texts[at + 1].toLongLong(), texts[at + 2].toLongLong()});
    }
    return entries;
}

QStringList FRunFolder::left() const {
    QFile notes(notesFile(mEarlier));
    if (!FFile::openOrdinary(notes).isEmpty()) {
        return {};
    }
    QStringList names;
    for (const QByteArray& name : notes.readAll().split(separator)) {
        names.append(QString::fromUtf8(name));
    }
    return names;
}

QStringList FRunFolder::leftBehind() {
    mLeftByInterruption = 0;
    const std::optional<Entries> before = readBefore();
    if (!before) {
        return left();
    }
    const QStringList unknown = changes(*before, list());
    mLeftByInterruption = unknown.size();
    return unknown;
}

void FRunFolder::noteLeft() const {
    if (!mBefore) {
        return;
    }
    QByteArrayList names;
    for (const QString& name : changes(*mBefore, list())) {
        names.append(name.toUtf8());
    }
    // As long as the state before the run is there, the next run takes this one as interrupted.
    if (FSafePath::replace(notesFile(mEarlier), names.join(separator)).isEmpty()) {
        QFile::remove(beforeFile(mEarlier));
    }
}

// ---- before a run ----

// If one of these folders were a link, the folder that it points to would be emptied.
void FRunFolder::emptyEarlier() const {
    if (FSafePath::removeLink(QFileInfo(mEarlier).path()) && FSafePath::removeLink(mEarlier)) {
        QDir(mEarlier).removeRecursively();
    }
}

QString FRunFolder::fault(const QStringList& named) const {
    const QFileInfo folder(QDir::cleanPath(mFolder));
    for (const QFileInfo& level : {folder, QFileInfo(folder.path())}) {
        if (level.isSymLink()) {
            return QStringLiteral(
                       "The folder of the run, '%1', is a link to '%2', whose files would be moved and replaced. "
                       "Remove the link.")
                .arg(level.filePath(), level.symLinkTarget());
        }
    }
    const auto out = std::find_if(named.begin(), named.end(), [this](const QString& name) {
        return !FSafePath::leadsOut(name) && FSafePath::leadsOut(mFolder, name);
    });
    return out == named.end()
               ? QString()
               : QStringLiteral(
                     "'%1' would be outside the folder of the run, '%2': a folder in its path is a link. "
                     "Remove the link.")
                     .arg(*out, mFolder);
}

bool FRunFolder::moveAside(const QStringList& named, QString& reason) {
    reason = fault(named);
    if (!reason.isEmpty()) {
        return false;
    }
    emptyEarlier();
    if (!QDir().mkpath(mFolder)) {
        reason = QStringLiteral("The folder '%1' can't be created. Check the permissions of the folders above it.")
                     .arg(mFolder);
        return false;
    }
    if (!moveAll(named + leftBehind(), reason)) {
        return false;
    }
    mBefore = list();
    const QString problem = writeBefore();
    if (!problem.isEmpty()) {
        mBefore.reset();
        reason = QStringLiteral(
                     "The state of the folder '%1' can't be recorded in '%2' (%3). Make room on the disk, "
                     "or check the permissions.")
                     .arg(mFolder, beforeFile(mEarlier), problem);
    }
    return problem.isEmpty();
}

bool FRunFolder::moveAll(const QStringList& names, QString& reason) const {
    QStringList folders;
    for (const QString& name : names) {
        const QFileInfo entry(mFolder + name);
        if (!name.isEmpty() && isFolder(entry) && !FSafePath::leadsOut(mFolder, name)) {
            makeWritable(entry.filePath());
        }
    }
    for (const QString& name : names) {
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
    return true;
}

bool FRunFolder::moveFile(const QString& name, QString& reason) const {
    const QString target = mEarlier + QLatin1Char('/') + name;
    const QString folder = QFileInfo(target).path();
    QFile file(mFolder + name);
    const bool hasFolder = QDir().mkpath(folder);
    if (hasFolder && file.rename(target)) {
        return true;
    }
    reason =
        QStringLiteral("'%1' is left from an earlier run and can't be moved to '%2'").arg(mFolder + name, target) +
        (hasFolder ? QStringLiteral(" (%1). Close the program that has it open, or remove it.").arg(file.errorString())
                   : QStringLiteral(": %1.").arg(obstacleOf(folder)));
    return false;
}

void FRunFolder::removeEmptyFolders(QStringList folders) const {
    // Deepest first; one that isn't empty stays.
    std::sort(folders.begin(), folders.end(), std::greater<>());
    for (const QString& folder : qAsConst(folders)) {
        QDir().rmdir(mFolder + folder);
    }
}
