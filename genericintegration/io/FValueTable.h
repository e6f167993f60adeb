#pragma once

#include "host/core/FExpr.h"

#include <QMap>
#include <QString>

#include <memory>
#include <vector>

class FConfiguration;
class FEntry;
class FEntryBase;
class FTagRows;
class FTemplateKeys;
class FTemplateOwner;

/**
 * What tags can name: the entries of a configuration, and the templates of its definition, as they are when the table
 * is made. Made once for all files of one export or preview. That takes time for the templates only, unless an entry
 * has come, gone or been renamed since the last one.
 */
class FValueTable {
 public:
    enum class Use { Export, Preview };

    /** In an export a template's key is the word "Exports", a "|" and its file name; in a preview the file name alone.
     */
    FValueTable(const FConfiguration& configuration, const FTemplateOwner& definition, Use use);

    const FTemplateKeys& getKeys() const;
    /** The text that replaces a tag which the row answers. */
    QString textOf(int row) const;
    /** The entries whose values may give file names. */
    const std::vector<const FEntry*>& getFileNameEntries() const;

 private:
    QString entryText(const FEntry& entry) const;

    Use mUse;
    QMap<QString, FExpr<FEntryBase>> mEntryMap;  // shared; keeps the entries of the rows, whatever a value does
    std::shared_ptr<const FTagRows> mRows;
};
