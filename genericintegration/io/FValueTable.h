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
 * The objects that tags can name: the entries of a configuration and the templates of its definition, as they are at
 * construction. Made once for all files of one export or preview. Construction takes time only for the templates,
 * unless entries have been added, removed or renamed since the last one.
 */
class FValueTable {
 public:
    enum class Use { Export, Preview };

    /** The key of a template is "Exports|" and its file name in an export, only the file name in a preview. */
    FValueTable(const FConfiguration& configuration, const FTemplateOwner& definition, Use use);

    const FTemplateKeys& getKeys() const;
    /** The text that replaces a tag of the row. */
    QString textOf(int row) const;
    /** The entry of a row; null for a file. */
    const FEntry* entryOf(int row) const;
    /** The entries whose values may be file names. */
    const std::vector<const FEntry*>& getFileNameEntries() const;

 private:
    QString entryText(const FEntry& entry) const;

    Use mUse;
    QMap<QString, FExpr<FEntryBase>>
        mEntryMap;  // shared; keeps the entries of the rows alive, whatever the evaluation of a value does
    std::shared_ptr<const FTagRows> mRows;
};
