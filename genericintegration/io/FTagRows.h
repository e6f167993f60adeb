#pragma once

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/templates/FTemplateCache.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class FConfiguration;
class FEntry;
class FTemplateOwner;

/**
 * The rows that tags can name, in the order of their keys: the entries of a configuration, and files. They hold no
 * values, so they last from one export to the next, until an entry or file comes, goes or is renamed. The entries must
 * be kept alive by whoever uses their rows.
 */
class FTagRows : public FTemplateCache {
 public:
    struct Row {
        const FEntry* entry;  //!< null for a file
        QString fileName;     //!< the text of a file's row
    };

    /** The rows for the configuration as it is now. Built only if they aren't those that the definition keeps. */
    static std::shared_ptr<const FTagRows> of(const FConfiguration& configuration, const FTemplateOwner& definition,
                                              const QStringList& fileKeys);

    const FTemplateKeys& getKeys() const { return mKeys; }
    const Row& at(int row) const { return mRows[static_cast<std::size_t>(row)]; }
    /** The entries whose values may give file names at present, also those in whose place a file answers. */
    const std::vector<const FEntry*>& getFileNameEntries() const;

 private:
    FTagRows(const FConfiguration& configuration, const QStringList& fileKeys);
    void append(const QString& key, const Row& row);

    quint64 mEntryMapNumber;
    QStringList mFileKeys;
    std::vector<Row> mRows;
    FTemplateKeys mKeys;
    std::vector<const FEntry*> mEntries;
    mutable quint64 mFileNameVersion = 0;
    mutable std::vector<const FEntry*> mFileNameEntries;  //!< of that version; 0 is none
};
