#include "host/gui/panels/FEntryDefModel.h"

#include "host/design/FEntryDef.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/panels/FEntryChange.h"
#include "host/gui/panels/FEntryTypes.h"

FEntryDef& FEntryDefModel::entryOf(const Node& node) {
    return *static_cast<FEntryDef*>(node.object());
}

FEntryDef* FEntryDefModel::definitionOf(const QModelIndex& index) const {
    return index.isValid() ? &entryOf(*nodeAt(index)) : nullptr;
}

int FEntryDefModel::columnCount(const QModelIndex& parent) const {
    Q_UNUSED(parent)
    return columns;
}

QVariant FEntryDefModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const std::vector<Header> headers{
        {"Entry", "The name that tags of templates use"},
        {"Default", "The value that configurations have until they set another"},
        {"Type", "What the value is"},
        {"Count", "How often a configuration has the entry, from the least to the most"}};
    return orientation == Qt::Horizontal ? headerOf(headers, section, role) : QVariant();
}

QString FEntryDefModel::typeOf(const FEntryDef& entry) {
    return FEntryTypes::wordFor(entry.getType());
}

QString FEntryDefModel::countOf(const FEntryDef& entry) {
    const int least = entry.getMinOccurrences();
    const int most = entry.getMaxOccurrences();
    return least == most ? QString::number(most) : QStringLiteral("%1 to %2").arg(least).arg(most);
}

bool FEntryDefModel::mayEdit(const Node& node, int column) const {
    return column == nameColumn || (column == valueColumn && !node.object()->isGroup());
}

QString FEntryDefModel::textOf(const Node& node, int column) const {
    const FEntryDef& entry = entryOf(node);
    return column == nameColumn    ? entry.getName()
           : column == valueColumn ? FScriptText::of(entry.getDefaultValue())
           : column == typeColumn  ? typeOf(entry)
                                   : countOf(entry);
}

bool FEntryDefModel::isSecondary(const Node& node, int column) const {
    return column == typeColumn || (column == countColumn && entryOf(node).getMaxOccurrences() == 1);
}

QStringList FEntryDefModel::detailsOf(const Node& node) const {
    const FEntryDef& entry = entryOf(node);
    QStringList lines{QStringLiteral("%1: %2").arg(entry.getFullName(), typeOf(entry))};
    if (entry.hasDefault()) {
        lines.append(QStringLiteral("Default: %1").arg(FScriptText::of(entry.getDefaultValue())));
    }
    lines.append(QStringLiteral("Occurrences: %1").arg(countOf(entry)));
    return lines;
}

QString FEntryDefModel::change(const Node& node, int column, const QString& text) {
    return column == nameColumn ? FEntryChange::renameEntry(*definition(), entryOf(node), text)
                                : FEntryChange::setDefault(*definition(), entryOf(node), text);
}
