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
 * values, so they stay valid from one export to the next, until an entry or file is added, removed or renamed. Users
 * of the rows must keep the entries alive.
 */
class FTagRows : public FTemplateCache {
 public:
    struct Row {
        const FEntry* entry;  //!< null for a file
        QString fileName;     //!< the text of a file's row
    };

    /** The rows for the present configuration. Built only if those that the definition caches don't fit. */
    static std::shared_ptr<const FTagRows> of(const FConfiguration& configuration, const FTemplateOwner& definition,
                                              const QStringList& fileKeys);

    const FTemplateKeys& getKeys() const { return mKeys; }
    const Row& at(int row) const { return mRows[static_cast<std::size_t>(row)]; }
    /** The entries whose values may be file names at present, also those whose key a file has taken. */
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
    mutable std::vector<const FEntry*> mFileNameEntries;  //!< for that version; 0 is none
};
