#pragma once

#include "genericintegration/templates/FGenIntFile.h"

/**
 * The template files of a definition in the order of adding, and which of them are input templates and result
 * templates. The owner depends on each file.
 *
 * Files that were destroyed remain in the lists as dead handles until `dropGone`.
 */
class FTemplateFiles {
 public:
    using Files = QList<FExpr<FGenIntFile>>;

    /** @param owner  outlives this object */
    explicit FTemplateFiles(const FObject& owner) : mpOwner(&owner) {}
    FTemplateFiles(const FTemplateFiles&) = delete;
    FTemplateFiles& operator=(const FTemplateFiles&) = delete;

    static bool isCommandFile(const FExpr<FGenIntFile>& file);

    /** The handle isn't empty; a file may be added several times. */
    void add(const FExpr<FGenIntFile>& file);
    /** Removes a file wherever it is in the lists. */
    void remove(const FExpr<FGenIntFile>& file);
    void clear();
    /** Removes the first destroyed file of each list, so several files go one per call. */
    void dropGone();

    /** The first file of exactly that file name; an empty handle for an empty name, or if there is none. */
    FExpr<FGenIntFile> find(const QString& fileName) const;
    /** File names of the result templates. */
    QStringList getReadFiles() const;

    Files mAll;
    Files mCommandFiles;
    Files mResultsFiles;

 private:
    const FObject* mpOwner;
};
