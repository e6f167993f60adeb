#include "host/gui/panels/FEntryModel.h"

#include "host/core/FChanges.h"
#include "host/core/FManaged.h"
#include "host/design/FEntryDef.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/fields/FValueField.h"
#include "host/gui/panels/FEntryChange.h"

#include <QFont>

namespace {

constexpr int usesDelay = 300;  // milliseconds

FEntry* asEntry(const FExpr<FEntryBase>& handle) {
    return static_cast<FEntry*>(FEntryBase::of(handle));
}

}  // namespace

struct FEntryModel::Node {
    FExpr<FEntryBase> entry;             //!< empty for the root
    const FValueField* field = nullptr;  //!< null for the row of the entry itself
    Node* parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<Node>> children;
    QString refused;  //!< text that was refused
    QString fault;    //!< the reason
    int refusedColumn = -1;

    FEntry* object() const { return asEntry(entry); }
};

FEntryModel::FEntryModel() : mpRoot(std::make_unique<Node>()) {
    mUsesTimer.setSingleShot(true);
    mUsesTimer.setInterval(usesDelay);
    connect(&mUsesTimer, &QTimer::timeout, this, &FEntryModel::findUses);
    const FChanges* changes = FChanges::instance();
    const auto followSoon = [this] { mFollow.request(); };
    connect(changes, &FChanges::objectChanged, this, followSoon);
    connect(changes, &FChanges::objectRenamed, this, followSoon);
    connect(changes, &FChanges::stepDone, this, followSoon);
    connect(changes, &FChanges::stepUndone, this, followSoon);
    connect(changes, &FChanges::stepRedone, this, followSoon);
    connect(changes, &FChanges::stepTakenBack, this, followSoon);
    connect(changes, &FChanges::objectLeft, this, [this](const FManaged* object) {
        if (object->getBlock() == mConfiguration.identity()) {
            setConfiguration(nullptr);
        }
    });
}

FEntryModel::~FEntryModel() = default;

// ---- following the model ----

void FEntryModel::setConfiguration(FConfiguration* configuration) {
    mConfiguration = configuration;
    mUses.clear();
    build();
}

void FEntryModel::hold(bool isHeld) {
    mIsHeld = isHeld;
    mFollow.request();
}

void FEntryModel::build() {
    beginResetModel();
    mpRoot = std::make_unique<Node>();
    mVersion = FEntryHolder::getStructureVersion();
    if (const FConfiguration* configuration = mConfiguration.ptr()) {
        addEntries(*mpRoot, *configuration);
        mUsesTimer.start();
    }
    endResetModel();
    emit followed();
}

void FEntryModel::addEntries(Node& parent, const FEntryHolder& holder) {
    const auto add = [](Node& above, const FExpr<FEntryBase>& entry) -> Node& {
        auto node = std::make_unique<Node>();
        node->entry = entry;
        node->parent = &above;
        node->row = static_cast<int>(above.children.size());
        above.children.push_back(std::move(node));
        return *above.children.back();
    };
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        const FEntry* entry = asEntry(handle);
        Node& node = add(parent, handle);
        addEntries(node, *entry);
        for (const FValueField& field : FValueField::of(entry->getValue().getStored())) {
            add(node, handle).field = &field;
        }
    }
}

/** Whether the rows below a node are those that `build` would make. */
bool FEntryModel::isBuiltAsModel(const Node& node) const {
    return std::all_of(node.children.begin(), node.children.end(), [this](const auto& child) {
        if (child->field) {
            return true;
        }
        const auto& fields = FValueField::of(child->object()->getValue().getStored());
        const FValueField* first = child->children.empty() ? nullptr : child->children.front()->field;
        return first == (fields.empty() ? nullptr : &fields.front()) && isBuiltAsModel(*child);
    });
}

void FEntryModel::follow() {
    if (mIsHeld || !mConfiguration) {
        return;
    }
    if (mVersion != FEntryHolder::getStructureVersion() || !isBuiltAsModel(*mpRoot)) {
        build();
        return;
    }
    tellChanged(*mpRoot);
    mUsesTimer.start();
    emit followed();
}

void FEntryModel::tellChanged(const Node& node) {
    if (node.children.empty()) {
        return;
    }
    emit dataChanged(indexOf(*node.children.front()), indexOf(*node.children.back(), columns - 1));
    for (const auto& child : node.children) {
        tellChanged(*child);
    }
}

void FEntryModel::findUses() {
    if (const FConfiguration* configuration = mConfiguration.ptr()) {
        mUses = FSetUpCheck::usesOf(*configuration);
        emit usesFound();
    }
}

QStringList FEntryModel::usesOf(const FEntry& entry) const {
    return mUses.value(entry.getFullName());
}

// ---- rows ----

FEntryModel::Node* FEntryModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : mpRoot.get();
}

QModelIndex FEntryModel::indexOf(const Node& node, int column) const {
    return &node == mpRoot.get() ? QModelIndex() : createIndex(node.row, column, const_cast<Node*>(&node));
}

FEntry* FEntryModel::entryAt(const QModelIndex& index) const {
    return index.isValid() ? nodeAt(index)->object() : nullptr;
}

QModelIndex FEntryModel::indexOf(const QString& path) const {
    const Node* node = mpRoot.get();
    for (const QString& level : path.split(QLatin1Char('|'))) {
        const auto found = std::find_if(node->children.begin(), node->children.end(), [&level](const auto& child) {
            return !child->field && (child->object()->getPathPart() == level || child->object()->getName() == level);
        });
        if (found == node->children.end()) {
            return {};
        }
        node = found->get();
    }
    return indexOf(*node);
}

QModelIndex FEntryModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, nodeAt(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex FEntryModel::parent(const QModelIndex& index) const {
    const Node* parent = index.isValid() ? nodeAt(index)->parent : nullptr;
    return parent ? indexOf(*parent) : QModelIndex();
}

int FEntryModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children.size());
}

int FEntryModel::columnCount(const QModelIndex& parent) const {
    Q_UNUSED(parent)
    return columns;
}

QVariant FEntryModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const char* const titles[] = {"Entry", "Value", "Evaluated"};
    return orientation == Qt::Horizontal && (role == Qt::DisplayRole || role == Qt::ToolTipRole) && section < columns
               ? QString::fromLatin1(titles[section])
               : QAbstractItemModel::headerData(section, orientation, role);
}

Qt::ItemFlags FEntryModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return {};
    }
    const Node& node = *nodeAt(index);
    const bool isName = index.column() == nameColumn && !node.field;
    const bool holdsValue = node.field ? isPartOfValue(node) : !node.object()->isGroup();
    const bool isValue = index.column() == valueColumn && holdsValue;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | (isName || isValue ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

// ---- contents ----

QString FEntryModel::nameOf(const Node& node) {
    return node.field ? node.field->label : node.object()->getPathPart();
}

/** False if the value has become one of another class since the rows were built. */
bool FEntryModel::isPartOfValue(const Node& node) {
    const auto& fields = FValueField::of(node.object()->getValue().getStored());
    return std::any_of(fields.begin(), fields.end(),
                       [&node](const FValueField& field) { return &field == node.field; });
}

FExprBase FEntryModel::valueOf(const Node& node) {
    const FExprBase& value = node.object()->getValue();
    if (!node.field) {
        return value;
    }
    return isPartOfValue(node) ? node.field->get(*value.getStored()) : FExprBase();
}

QVariant FEntryModel::editTextOf(const Node& node, int column) const {
    if (column == node.refusedColumn) {
        return node.refused;
    }
    if (column == nameColumn) {
        return node.field ? QString() : node.object()->getName();
    }
    const FExprBase value = valueOf(node);
    return node.field && !node.field->choices.isEmpty() ? value.toString() : FScriptText::of(value);
}

QVariant FEntryModel::textOf(const Node& node, int column) const {
    switch (column) {
        case nameColumn:
            return node.refusedColumn == nameColumn ? node.refused : nameOf(node);
        case valueColumn:
            return node.object()->isGroup() ? QVariant() : editTextOf(node, column);
        default:
            return node.object()->isGroup() ? QString() : FScriptText::evaluated(valueOf(node));
    }
}

QVariant FEntryModel::colorOf(const Node& node, int column) const {
    if (column == node.refusedColumn) {
        return FStateColor::of(FStateColor::State::Bad);
    }
    const bool isSecondary = column == resultColumn || (column == nameColumn && node.field) ||
                             (column == valueColumn && node.object()->hasDefaultValue());
    return isSecondary ? FStateColor::of(FStateColor::State::Secondary) : QVariant();
}

QString FEntryModel::toolTipOf(const Node& node) const {
    const FEntry& entry = *node.object();
    const FEntryDef* definition = entry.getDefinition().ptr();
    const FExprBase value = valueOf(node);
    const QString given = FScriptText::evaluated(value);
    QStringList lines{node.field ? QStringLiteral("%1: %2").arg(entry.getFullName(), nameOf(node))
                                 : entry.getFullName()};
    if (!value.isEmpty()) {
        lines.append(QStringLiteral("Value: %1").arg(FScriptText::of(value)));
    }
    if (!given.isEmpty()) {
        lines.append(QStringLiteral("Evaluated: %1").arg(given));
    }
    if (!node.fault.isEmpty()) {
        lines.prepend(node.fault);
    }
    if (definition && !definition->getDescription().isEmpty()) {
        lines.append(definition->getDescription());
    }
    if (definition && definition->hasDefault()) {
        lines.append(QStringLiteral("Default: %1").arg(FScriptText::of(definition->getDefaultValue())));
    }
    const QStringList uses = usesOf(entry);
    if (!uses.isEmpty()) {
        lines.append(QStringLiteral("Used in %1").arg(uses.join(QStringLiteral(", "))));
    }
    return lines.join(QLatin1Char('\n'));
}

QVariant FEntryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const Node& node = *nodeAt(index);
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole:
            return textOf(node, column);
        case Qt::EditRole:
            return editTextOf(node, column);
        case Qt::ForegroundRole:
            return colorOf(node, column);
        case Qt::DecorationRole:
            return column == node.refusedColumn ? FIcons::get(QStringLiteral("dialog-error")) : QVariant();
        case Qt::ToolTipRole:
            return toolTipOf(node);
        case Qt::AccessibleDescriptionRole:
            return !node.fault.isEmpty()                                       ? node.fault
                   : column == valueColumn && node.object()->hasDefaultValue() ? QStringLiteral("default")
                                                                               : QString();
        case choicesRole:
            return node.field && column == valueColumn ? QVariant(node.field->choices) : QVariant();
        case pathRole:
            return node.object()->getFullName();
        case faultRole:
            return node.fault;
        default:
            return {};
    }
}

bool FEntryModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole || value == data(index, Qt::EditRole) ||
        !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    const FExpr<FConfiguration> configuration = mConfiguration;
    const QPersistentModelIndex place(index);
    Node& node = *nodeAt(index);
    const FExpr<FEntryBase> entry = node.entry;
    forgetRefused(index);
    const QString text = value.toString();
    const QString fault = index.column() == nameColumn
                              ? FEntryChange::renameEntry(*configuration.ptr(), *asEntry(entry), text)
                          : node.field ? FEntryChange::setField(*asEntry(entry), *node.field, text)
                                       : FEntryChange::setValue(*asEntry(entry), text);
    if (!fault.isEmpty() && place.isValid()) {
        Node& refusing = *nodeAt(place);
        refusing.refused = text;
        refusing.fault = fault;
        refusing.refusedColumn = place.column();
        emit dataChanged(place, place);
    }
    mFollow.request();
    return fault.isEmpty();
}

void FEntryModel::forgetRefused(const QModelIndex& index) {
    if (index.isValid()) {
        Node& node = *nodeAt(index);
        node.refused.clear();
        node.fault.clear();
        node.refusedColumn = -1;
        emit dataChanged(indexOf(node), indexOf(node, columns - 1));
    }
}
