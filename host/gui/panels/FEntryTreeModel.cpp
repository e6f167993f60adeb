#include "host/gui/panels/FEntryTreeModel.h"

#include "host/core/FChanges.h"
#include "host/core/FManaged.h"
#include "host/design/FEntryDef.h"
#include "host/gui/base/FSeverityLook.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/fields/FValueField.h"

namespace {

constexpr int usesDelay = 300;  // milliseconds

}  // namespace

FEntryTreeModel::FEntryTreeModel() : mpTop(std::make_unique<Node>()) {
    mUsesTimer.setSingleShot(true);
    mUsesTimer.setInterval(usesDelay);
    connect(&mUsesTimer, &QTimer::timeout, this, &FEntryTreeModel::findUses);
    const FChanges* changes = FChanges::instance();
    const auto followSoon = [this] { mFollow.request(); };
    connect(changes, &FChanges::objectChanged, this, followSoon);
    connect(changes, &FChanges::objectRenamed, this, followSoon);
    connect(changes, &FChanges::stepDone, this, followSoon);
    connect(changes, &FChanges::stepUndone, this, followSoon);
    connect(changes, &FChanges::stepRedone, this, followSoon);
    connect(changes, &FChanges::stepTakenBack, this, followSoon);
    connect(changes, &FChanges::objectLeft, this, [this](const FManaged* object) {
        if (object->getBlock() == mRoot.identity()) {
            setRoot(nullptr);
        }
    });
}

FEntryTreeModel::~FEntryTreeModel() = default;

// ---- following the model ----

void FEntryTreeModel::setRoot(FDefinitionBase* root) {
    mRoot = root;
    mUses.clear();
    build();
}

void FEntryTreeModel::hold(bool isHeld) {
    mIsHeld = isHeld;
    mFollow.request();
}

void FEntryTreeModel::build() {
    beginResetModel();
    mpTop = std::make_unique<Node>();
    mVersion = FEntryHolder::getStructureVersion();
    if (const FDefinitionBase* root = mRoot.ptr()) {
        addEntries(*mpTop, *root);
        mUsesTimer.start();
    }
    endResetModel();
    emit followed();
}

void FEntryTreeModel::addEntries(Node& parent, const FEntryHolder& holder) {
    const auto add = [](Node& above, const FExpr<FEntryBase>& entry) -> Node& {
        auto node = std::make_unique<Node>();
        node->entry = entry;
        node->parent = &above;
        node->row = static_cast<int>(above.children.size());
        above.children.push_back(std::move(node));
        return *above.children.back();
    };
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        const FEntryBase* entry = FEntryBase::of(handle);
        Node& node = add(parent, handle);
        addEntries(node, *entry);
        for (const FValueField& field : fieldsOf(*entry)) {
            add(node, handle).field = &field;
        }
    }
}

/** Whether the rows below a node are those that `build` would make. */
bool FEntryTreeModel::isBuiltAsModel(const Node& node) const {
    return std::all_of(node.children.begin(), node.children.end(), [this](const auto& child) {
        if (child->field) {
            return true;
        }
        const auto& fields = fieldsOf(*child->object());
        const FValueField* first = child->children.empty() ? nullptr : child->children.front()->field;
        return first == (fields.empty() ? nullptr : &fields.front()) && isBuiltAsModel(*child);
    });
}

void FEntryTreeModel::follow() {
    if (mIsHeld || !mRoot) {
        return;
    }
    if (mVersion != FEntryHolder::getStructureVersion() || !isBuiltAsModel(*mpTop)) {
        build();
        return;
    }
    tellChanged(*mpTop);
    mUsesTimer.start();
    emit followed();
}

void FEntryTreeModel::tellChanged(const Node& node) {
    if (node.children.empty()) {
        return;
    }
    emit dataChanged(indexOf(*node.children.front()), indexOf(*node.children.back(), columnCount() - 1));
    for (const auto& child : node.children) {
        tellChanged(*child);
    }
}

void FEntryTreeModel::findUses() {
    if (const FDefinition* used = definition()) {
        mUses = FSetUpCheck::usesOf(*used);
        emit usesFound();
    }
}

QStringList FEntryTreeModel::usesOf(const QModelIndex& index) const {
    const FEntryDef* entry = definitionOf(index);
    return entry ? mUses.value(entry->getFullName()) : QStringList();
}

// ---- rows ----

FEntryTreeModel::Node* FEntryTreeModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : mpTop.get();
}

QModelIndex FEntryTreeModel::indexOf(const Node& node, int column) const {
    return &node == mpTop.get() ? QModelIndex() : createIndex(node.row, column, const_cast<Node*>(&node));
}

QModelIndex FEntryTreeModel::indexOf(const QString& path) const {
    const Node* node = mpTop.get();
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

QModelIndex FEntryTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, nodeAt(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex FEntryTreeModel::parent(const QModelIndex& index) const {
    const Node* parent = index.isValid() ? nodeAt(index)->parent : nullptr;
    return parent ? indexOf(*parent) : QModelIndex();
}

int FEntryTreeModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children.size());
}

Qt::ItemFlags FEntryTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return {};
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable |
           (mayEdit(*nodeAt(index), index.column()) ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

// ---- contents ----

QVariant FEntryTreeModel::headerOf(const std::vector<Header>& headers, int section, int role) {
    if (section < 0 || section >= static_cast<int>(headers.size())) {
        return {};
    }
    const Header& header = headers[static_cast<std::size_t>(section)];
    // The title comes first, since it may be elided.
    return role == Qt::DisplayRole ? QVariant(QString::fromLatin1(header.title))
           : role == Qt::ToolTipRole
               ? QStringLiteral("%1: %2").arg(QString::fromLatin1(header.title), QString::fromLatin1(header.tip))
               : QVariant();
}

const std::vector<FValueField>& FEntryTreeModel::fieldsOf(const FEntryBase& entry) const {
    Q_UNUSED(entry)
    static const std::vector<FValueField> none;
    return none;
}

QStringList FEntryTreeModel::choicesOf(const Node& node, int column) const {
    Q_UNUSED(node)
    Q_UNUSED(column)
    return {};
}

QString FEntryTreeModel::remarkOf(const Node& node, int column) const {
    Q_UNUSED(node)
    Q_UNUSED(column)
    return {};
}

QString FEntryTreeModel::toolTipOf(const QModelIndex& index) const {
    const Node& node = *nodeAt(index);
    const FEntryDef* definition = definitionOf(index);
    QStringList lines = detailsOf(node);
    if (!node.fault.isEmpty()) {
        lines.prepend(node.fault);
    }
    if (definition && !definition->getDescription().isEmpty()) {
        lines.append(definition->getDescription());
    }
    const QStringList uses = usesOf(index);
    if (!uses.isEmpty()) {
        lines.append(QStringLiteral("Used in %1").arg(uses.join(QStringLiteral(", "))));
    }
    return lines.join(QLatin1Char('\n'));
}

QVariant FEntryTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const Node& node = *nodeAt(index);
    const int column = index.column();
    const bool isRefused = column == node.refusedColumn;
    switch (role) {
        case Qt::DisplayRole:
            return isRefused ? node.refused : textOf(node, column);
        case Qt::EditRole:
            return isRefused ? node.refused : editTextOf(node, column);
        case Qt::ForegroundRole:
            return isRefused                   ? FStateColor::of(FStateColor::State::Bad)
                   : isSecondary(node, column) ? QVariant(FStateColor::of(FStateColor::State::Secondary))
                                               : QVariant();
        case Qt::DecorationRole:
            return isRefused ? FSeverityLook::errorIcon() : QVariant();
        case Qt::ToolTipRole:
            return toolTipOf(index);
        case Qt::AccessibleDescriptionRole:
            return node.fault.isEmpty() ? remarkOf(node, column) : node.fault;
        case choicesRole:
            return choicesOf(node, column);
        case pathRole:
            return node.object()->getFullName();
        case faultRole:
            return node.fault;
        default:
            return {};
    }
}

bool FEntryTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole || value == data(index, Qt::EditRole) ||
        !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    const FExpr<FDefinitionBase> keepRoot = mRoot;
    const FExpr<FEntryBase> keepEntry = nodeAt(index)->entry;
    const QPersistentModelIndex place(index);
    forgetRefused(index);
    const QString text = value.toString();
    const QString fault = change(*nodeAt(index), index.column(), text);
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

QModelIndex FEntryTreeModel::refused() const {
    return refusedBelow(*mpTop);
}

QModelIndex FEntryTreeModel::refusedBelow(const Node& node) const {
    if (!node.fault.isEmpty()) {
        return indexOf(node, node.refusedColumn);
    }
    for (const auto& child : node.children) {
        const QModelIndex found = refusedBelow(*child);
        if (found.isValid()) {
            return found;
        }
    }
    return {};
}

QString FEntryTreeModel::textInModel(const QModelIndex& index) const {
    return textOf(*nodeAt(index), index.column());
}

void FEntryTreeModel::forgetRefused(const QModelIndex& index) {
    if (index.isValid()) {
        Node& node = *nodeAt(index);
        node.refused.clear();
        node.fault.clear();
        node.refusedColumn = -1;
        emit dataChanged(indexOf(node), indexOf(node, columnCount() - 1));
    }
}
