#include "genericintegration/setup/FEntryUses.h"

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FTemplateScanner.h"
#include "genericintegration/templates/FTextPlaces.h"
#include "host/design/FEntry.h"

namespace {

constexpr int mostPlaces = 20;

}  // namespace

FEntryUses::FEntryUses(const FConfiguration& configuration, const FDefinitionGenInt& definition)
    : mDefinition(definition), mTable(configuration, definition, FValueTable::Use::Export) {}

FSetUpCheck::Uses FEntryUses::find() const {
    FSetUpCheck::Uses uses;
    for (const FExpr<FGenIntFile>& file : mDefinition.getCommandFiles()) {
        if (file) {
            findIn(*file.ptr(), uses);
        }
    }
    return uses;
}

void FEntryUses::findIn(const FGenIntFile& file, FSetUpCheck::Uses& uses) const {
    const QString text = file.getPlainContent();
    FTextPlaces places(text);
    QHash<int, QStringList> ofRow;
    FTemplateScanner scanner(text);
    while (const auto tag = scanner.next()) {
        const int row = mTable.getKeys().find(tag->name);
        if (row == FTemplateKeys::notFound || !mTable.entryOf(row)) {
            continue;
        }
        QStringList& found = ofRow[row];
        const QString place = QStringLiteral("%1:%2").arg(file.getName()).arg(places.at(tag->position).line);
        if (found.size() < mostPlaces && (found.isEmpty() || found.last() != place)) {
            found.append(place);
        }
    }
    for (auto row = ofRow.begin(); row != ofRow.end(); ++row) {
        uses[mTable.entryOf(row.key())->getFullName()] += *row;
    }
}
