#include "genericintegration/io/FValueTable.h"

#include "genericintegration/templates/FExportsGroup.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FTemplateOwner.h"
#include "host/core/FBasicType.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntry.h"

FValueTable::FValueTable(const FConfiguration& configuration, const FTemplateOwner& definition, Use use) : mUse(use) {
    QMap<QString, FExprBase> rows;
    const auto& entries = configuration.getEntryMap();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        rows.insert(entry.key(), entry.value());
    }
    for (const FExpr<FGenIntFile>& file : definition.getFiles()) {
        if (file) {
            rows.insert(use == Use::Export ? FExportsGroup::prefix() + file->getFileName() : file->getFileName(), file);
        }
    }
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        mKeys.append(row.key(), row.value().isValid());
        mRows.push_back({row.key(), row.value()});
    }
}

QString FValueTable::textOf(int row) const {
    const Row& found = mRows[static_cast<std::size_t>(row)];
    const FObject* object = found.object.getObject();
    if (const auto* entry = dynamic_cast<const FEntry*>(object)) {
        return entryText(*entry);
    }
    if (dynamic_cast<const FGenIntFile*>(object)) {
        // The length of the word with its "|", whatever the key begins with.
        return found.key.mid(FExportsGroup::prefix().size());
    }
    return {};
}

QString FValueTable::entryText(const FEntry& entry) const {
    const FExprBase& value = entry.getValue();
    if (mUse == Use::Preview && !value.canSafelyBeUpdated(false)) {
        return value.toString(nullptr).replace(QLatin1Char('\\'), QLatin1Char('/'));
    }
    const auto* basic = dynamic_cast<const FBasicType*>(entry.getValueObject());
    return basic ? basic->toPlainString() : QStringLiteral("SHOULD_BE_EXPORTED");
}
