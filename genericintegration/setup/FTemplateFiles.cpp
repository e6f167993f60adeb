#include "genericintegration/setup/FTemplateFiles.h"

#include "genericintegration/templates/FGenIntCommandFile.h"

#include <QStringList>

#include <algorithm>

namespace {

using Files = FTemplateFiles::Files;

/** Removes all handles on the first object of the list that is gone; returns how many. */
template <class IsGone>
int dropFirstGone(Files& files, FExpr<FGenIntFile>& gone, IsGone isGone) {
    const auto found = std::find_if(files.begin(), files.end(), isGone);
    if (found == files.end()) {
        return 0;
    }
    gone = *found;
    return files.removeAll(gone);
}

}  // namespace

bool FTemplateFiles::isCommandFile(const FExpr<FGenIntFile>& file) {
    const FGenIntFile* object = file.ptr();
    return object && object->isTypeOf(FGenIntCommandFile::null());
}

void FTemplateFiles::add(const FExpr<FGenIntFile>& file) {
    mAll.append(file);
    mAll.last().registerClient(mpOwner, false);
    (isCommandFile(file) ? mCommandFiles : mResultsFiles).append(file);
}

void FTemplateFiles::remove(const FExpr<FGenIntFile>& file) {
    // The handle may be in one of the lists itself.
    const FExpr<FGenIntFile> removed = file;
    for (int count = mAll.removeAll(removed); count > 0; --count) {
        removed.unregisterClient(mpOwner);
    }
    mCommandFiles.removeAll(removed);
    mResultsFiles.removeAll(removed);
}

void FTemplateFiles::clear() {
    for (const FExpr<FGenIntFile>& file : mAll) {
        file.unregisterClient(mpOwner);
    }
    mAll.clear();
    mCommandFiles.clear();
    mResultsFiles.clear();
}

void FTemplateFiles::dropGone() {
    const auto isDead = [](const FExpr<FGenIntFile>& file) { return !file.ptr(); };
    FExpr<FGenIntFile> gone;
    int count = dropFirstGone(mAll, gone, [](const FExpr<FGenIntFile>& file) { return !FObject::exists(file.ptr()); });
    for (; count > 0; --count) {
        gone.unregisterClient(mpOwner);
    }
    dropFirstGone(mCommandFiles, gone, isDead);
    dropFirstGone(mResultsFiles, gone, isDead);
}

FExpr<FGenIntFile> FTemplateFiles::find(const QString& fileName) const {
    const auto found = std::find_if(mAll.begin(), mAll.end(), [&fileName](const FExpr<FGenIntFile>& file) {
        return file && file->getFileName() == fileName;
    });
    return fileName.isEmpty() || found == mAll.end() ? FExpr<FGenIntFile>() : *found;
}

QStringList FTemplateFiles::getReadFiles() const {
    QStringList names;
    for (const FExpr<FGenIntFile>& file : mResultsFiles) {
        if (file) {
            names.append(file->getFileName());
        }
    }
    return names;
}
