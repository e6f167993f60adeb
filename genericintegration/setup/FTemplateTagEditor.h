#pragma once

#include "genericintegration/templates/FGenIntFile.h"

/** Finds and changes the tags of a name in input templates. Case doesn't matter. */
class FTemplateTagEditor {
 public:
    explicit FTemplateTagEditor(const QList<FExpr<FGenIntFile>>& commandFiles) : mFiles(commandFiles) {}

    bool containTag(const QString& name) const;
    /** Replaces the tags by plain text. */
    void replaceTags(const QString& name, const QString& text) const;
    void renameTags(const QString& oldName, const QString& newName) const;

 private:
    QList<FExpr<FGenIntFile>> mFiles;  // a copy, since a change of a file may change the list
};
