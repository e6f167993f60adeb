#include "genericintegration/io/FTagRows.h"

#include "genericintegration/templates/FExportsGroup.h"
#include "genericintegration/templates/FTemplateOwner.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntry.h"

#include <algorithm>
#include <iterator>

std::shared_ptr<const FTagRows> FTagRows::of(const FConfiguration& configuration, const FTemplateOwner& definition,
                                             const QStringList& fileKeys) {
    auto rows = std::dynamic_pointer_cast<const FTagRows>(definition.writerCache());
    if (!rows || rows->mEntryMapNumber != configuration.getEntryMapNumber() || rows->mFileKeys != fileKeys) {
        rows.reset(new FTagRows(configuration, fileKeys));
        definition.writerCache() = rows;
    }
    return rows;
}

FTagRows::FTagRows(const FConfiguration& configuration, const QStringList& fileKeys)
    : mEntryMapNumber(configuration.getEntryMapNumber()), mFileKeys(fileKeys) {
    QStringList sorted = fileKeys;
    sorted.sort();
    sorted.removeDuplicates();
    // Cuts the length of the group word with its "|", whatever the key starts with.
    const auto appendFile = [this](const QString& key) {
        append(key, {nullptr, key.mid(FExportsGroup::prefix().size())});
    };
    auto file = sorted.cbegin();
    const auto& entries = configuration.getEntryMap();
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        for (; file != sorted.cend() && *file < entry.key(); ++file) {
            appendFile(*file);
        }
        const auto* object = static_cast<const FEntry*>(FEntryBase::of(entry.value()));
        mEntries.push_back(object);
        if (file == sorted.cend() || *file != entry.key()) {
            append(entry.key(), {object, {}});
        }
    }
    std::for_each(file, sorted.cend(), appendFile);
}

const std::vector<const FEntry*>& FTagRows::getFileNameEntries() const {
    if (mFileNameVersion != FEntry::getFileNameVersion()) {
        mFileNameVersion = FEntry::getFileNameVersion();
        mFileNameEntries.clear();
        std::copy_if(mEntries.begin(), mEntries.end(), std::back_inserter(mFileNameEntries),
                     [](const FEntry* entry) { return entry->mayGiveFileName(); });
    }
    return mFileNameEntries;
}

void FTagRows::append(const QString& key, const Row& row) {
    mKeys.append(key, true);
    mRows.push_back(row);
}
