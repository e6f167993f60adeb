#include "genericintegration/setup/FEntryUses.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "genericintegration/templates/FTemplateScanner.h"
#include "genericintegration/templates/FTextPlaces.h"

namespace {

constexpr int mostPlaces = 20;

}  // namespace

FEntryUses::FEntryUses(const FDefinitionGenInt& definition)
    : mDefinition(definition), mPaths(definition.getEntryMap().keys()) {
    for (const QString& path : qAsConst(mPaths)) {
        mKeys.append(path, true);
    }
}

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
        const int row = mKeys.find(tag->name);
        if (row == FTemplateKeys::notFound) {
            continue;
        }
        QStringList& found = ofRow[row];
        const QString place =
            QStringLiteral("%1:%2").arg(file.getName(), QString::number(places.at(tag->position).line));
        if (found.size() < mostPlaces && (found.isEmpty() || found.last() != place)) {
            found.append(place);
        }
    }
    for (auto row = ofRow.begin(); row != ofRow.end(); ++row) {
        uses[mPaths.at(row.key())] += *row;
    }
}
