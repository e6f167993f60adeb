#include "host/gui/panels/FEntryModel.h"

#include "host/design/FEntryDef.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/fields/FValueField.h"
#include "host/gui/panels/FEntryChange.h"

FEntry* FEntryModel::entryAt(const QModelIndex& index) const {
    return index.isValid() ? &entryOf(*nodeAt(index)) : nullptr;
}

FDefinition* FEntryModel::definition() const {
    return configuration() ? configuration()->getDefinition().ptr() : nullptr;
}

FEntryDef* FEntryModel::definitionOf(const QModelIndex& index) const {
    const FEntry* entry = entryAt(index);
    return entry ? entry->getDefinition().ptr() : nullptr;
}

int FEntryModel::columnCount(const QModelIndex& parent) const {
    Q_UNUSED(parent)
    return columns;
}

QVariant FEntryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const std::vector<Header> headers{
        {"Entry", "The name that tags of templates use"},
        {"Value", "A value, or an expression that is evaluated before each run; defaults are grey"},
        {"Evaluated", "What the expression gives at present"}};
    return orientation == Qt::Horizontal ? headerOf(headers, section, role) : QVariant();
}

const std::vector<FValueField>& FEntryModel::fieldsOf(const FEntryBase& entry) const {
    return FValueField::of(static_cast<const FEntry&>(entry).getValue().getStored());
}

bool FEntryModel::mayEdit(const Node& node, int column) const {
    const bool holdsValue = node.field ? isPartOfValue(node) : !node.object()->isGroup();
    return (column == nameColumn && !node.field) || (column == valueColumn && holdsValue);
}

/** False if the value has become one of another class since the rows were built. */
bool FEntryModel::isPartOfValue(const Node& node) {
    const auto& fields = FValueField::of(entryOf(node).getValue().getStored());
    return std::any_of(fields.begin(), fields.end(),
                       [&node](const FValueField& field) { return &field == node.field; });
}

FExprBase FEntryModel::valueOf(const Node& node) {
    const FExprBase& value = entryOf(node).getValue();
    if (!node.field) {
        return value;
    }
    return isPartOfValue(node) ? node.field->get(*value.getStored()) : FExprBase();
}

QString FEntryModel::editTextOf(const Node& node, int column) const {
    if (column == nameColumn) {
        return node.field ? QString() : node.object()->getName();
    }
    const FExprBase value = valueOf(node);
    return node.field && !node.field->choices.isEmpty() ? value.toString() : FScriptText::of(value);
}

QString FEntryModel::textOf(const Node& node, int column) const {
    if (column == nameColumn) {
        return node.field ? node.field->label : node.object()->getPathPart();
    }
    return node.object()->isGroup() ? QString()
           : column == valueColumn  ? editTextOf(node, column)
                                    : FScriptText::evaluated(valueOf(node));
}

QStringList FEntryModel::choicesOf(const Node& node, int column) const {
    return node.field && column == valueColumn ? node.field->choices : QStringList();
}

bool FEntryModel::isDefault(const Node& node, int column) {
    return column == valueColumn && entryOf(node).hasDefaultValue();
}

bool FEntryModel::isSecondary(const Node& node, int column) const {
    return column == resultColumn || (column == nameColumn && node.field) || isDefault(node, column);
}

QString FEntryModel::remarkOf(const Node& node, int column) const {
    return isDefault(node, column) ? QStringLiteral("default") : QString();
}

QStringList FEntryModel::detailsOf(const Node& node) const {
    const FEntry& entry = entryOf(node);
    const FEntryDef* definition = entry.getDefinition().ptr();
    const FExprBase value = valueOf(node);
    const QString given = FScriptText::evaluated(value);
    QStringList lines{node.field ? QStringLiteral("%1: %2").arg(entry.getFullName(), node.field->label)
                                 : entry.getFullName()};
    if (!value.isEmpty()) {
        lines.append(QStringLiteral("Value: %1").arg(FScriptText::of(value)));
    }
    if (!given.isEmpty()) {
        lines.append(QStringLiteral("Evaluated: %1").arg(given));
    }
    if (definition && definition->hasDefault()) {
        lines.append(QStringLiteral("Default: %1").arg(FScriptText::of(definition->getDefaultValue())));
    }
    return lines;
}

QString FEntryModel::change(const Node& node, int column, const QString& text) {
    FEntry& entry = entryOf(node);
    if (column != nameColumn) {
        return node.field ? FEntryChange::setField(entry, *node.field, text) : FEntryChange::setValue(entry, text);
    }
    const FExpr<FEntryDef> renamed = entry.getDefinition();
    return renamed && definition() ? FEntryChange::renameEntry(*definition(), *renamed.ptr(), text)
                                   : QStringLiteral("The definition doesn't have the entry");
}
