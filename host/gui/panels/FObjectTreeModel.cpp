#include "host/gui/panels/FObjectTreeModel.h"

#include "host/core/FChanges.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FObjectMime.h"
#include "host/gui/base/FRunLook.h"
#include "host/gui/base/FStateColor.h"
#include "host/run/FExternComputation.h"

#include <QMimeData>

#include <algorithm>

namespace {

/** More changes at once are shown by rebuilding the tree. */
constexpr int mostFollowed = 500;

/** The value of an object that has one, if it can be known without reading files. */
QString valueOf(const FManaged& object) {
    const FExprBase handle(&object);
    if (!object.holdsValue() || !handle.canSafelyBeUpdated(false)) {
        return {};
    }
    const FObject* value = object.getValueObject();
    constexpr int longest = 40;
    const QString text = value ? value->toString().simplified() : QStringLiteral("NULL");
    return text.size() > longest ? text.left(longest) + QChar(0x2026) : text;
}

QString displayText(const FManaged& object) {
    const QString value = valueOf(object);
    return value.isEmpty() ? object.getName() : QStringLiteral("%1 = %2").arg(object.getName(), value);
}

QString toolTipOf(const FManaged& object) {
    QString text = QStringLiteral("%1 (%2)").arg(object.getName(), FClassLook::wordFor(&object));
    if (const auto* results = dynamic_cast<const FComputationResults*>(&object)) {
        text += QLatin1Char('\n') + results->getStateText();
    } else if (const auto* computation = dynamic_cast<const FExternComputation*>(&object)) {
        text += QLatin1Char('\n') + FRunLook::textOf(*computation);
    }
    return text;
}

}  // namespace

struct FObjectTreeModel::Node {
    FManaged* object = nullptr;  //!< null for a group and for the root
    QString title;               //!< of a group
    Node* parent = nullptr;
    int row = 0;
    std::vector<NodePointer> children;
};

FObjectTreeModel::FObjectTreeModel() : mpRoot(std::make_unique<Node>()) {
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::objectEntered, this, [this](FManaged* object) {
        mEntered.insert(object);
        mFollow.request();
    });
    connect(changes, &FChanges::objectLeft, this, &FObjectTreeModel::objectLeft);
    const auto noteChange = [this](FManaged* object) {
        mChanged.insert(object);
        mFollow.request();
    };
    connect(changes, &FChanges::objectChanged, this, noteChange);
    connect(changes, &FChanges::objectRenamed, this, noteChange);
    rebuild();
}

FObjectTreeModel::~FObjectTreeModel() = default;

// ---- following the model ----

void FObjectTreeModel::hold(bool isHeld) {
    mHolds += isHeld ? 1 : -1;
    if (mHolds == 0) {
        mFollow.request();
    }
}

bool FObjectTreeModel::isShown(const FManaged* object) const {
    return object->isInModel() && !object->isDefault();
}

// Of results, only the present ones of a computation and of its designs are of use. Those of earlier runs live as long
// as the history or a script refers to them.
bool FObjectTreeModel::isShownAlone(const FManaged* object) const {
    const auto* results = dynamic_cast<const FComputationResults*>(object);
    const bool isOfUse =
        !results || (results->getVariant() && results->getComputation() && !results->getResultPath().isEmpty());
    return isOfUse && isShown(object) && object->getSystemLevel() <= 1;
}

void FObjectTreeModel::objectLeft(FManaged* object) {
    mEntered.remove(object);
    mChanged.remove(object);
    mWholes.remove(object);
    Node* node = mNodes.value(object);
    if (!node) {
        return;
    }
    while (!node->children.empty()) {
        release(*node->children.back());
    }
    remove(*node);
}

// What belonged to an object, and is still there, gets another place, unless it is only shown as a part.
void FObjectTreeModel::release(Node& node) {
    if (isShownAlone(node.object)) {
        move(node, *groupOf(node.object), -1);
        return;
    }
    while (!node.children.empty()) {
        release(*node.children.back());
    }
    remove(node);
}

void FObjectTreeModel::remove(Node& node) {
    Node* parent = node.parent;
    mNodes.remove(node.object);
    take(node);
    forget(*parent);
}

void FObjectTreeModel::follow() {
    if (mHolds > 0) {
        return;
    }
    const QSet<FManaged*> entered = std::exchange(mEntered, {});
    const QSet<FManaged*> changed = std::exchange(mChanged, {});
    if (entered.size() > mostFollowed) {
        rebuild();
        return;
    }
    QList<FManaged*> inOrder(entered.begin(), entered.end());
    std::sort(inOrder.begin(), inOrder.end(),
              [](const FManaged* a, const FManaged* b) { return a->getDbId() < b->getDbId(); });
    for (FManaged* object : inOrder) {
        place(object);
    }
    for (FManaged* object : inOrder + QList<FManaged*>(changed.begin(), changed.end())) {
        placeParts(object);
        const QModelIndex index = indexOf(object);
        if (index.isValid()) {
            emit dataChanged(index, index);
        }
    }
    // Others have parts through what has entered or changed, as a computation has those of its configuration.
    const QSet<FManaged*> wholes = mWholes;
    for (FManaged* object : wholes) {
        placeParts(object);
    }
}

void FObjectTreeModel::rebuild() {
    beginResetModel();
    mEntered.clear();
    mChanged.clear();
    mNodes.clear();
    mGroups.clear();
    mWholes.clear();
    mpRoot = std::make_unique<Node>();
    mIsFilling = true;
    fillWith(FObjectManager::instance()->getManaged(FManaged::null()));
    mIsFilling = false;
    endResetModel();
}

// Parts are placed before the others, which thus don't have to move.
void FObjectTreeModel::fillWith(const QList<FManaged*>& objects) {
    QHash<const FManaged*, FManaged*> wholes;
    for (FManaged* object : objects) {
        for (const FManaged* part : object->getParts()) {
            if (!wholes.contains(part)) {
                wholes.insert(part, object);
            }
        }
    }
    for (FManaged* object : objects) {
        if (!wholes.contains(object)) {
            place(object);
        }
    }
    for (FManaged* object : objects) {
        if (wholes.contains(object)) {
            place(object);
        }
    }
    for (FManaged* object : objects) {
        placeParts(object);
    }
}

void FObjectTreeModel::place(FManaged* object) {
    if (isShownAlone(object) && !mNodes.contains(object)) {
        add(object, *groupOf(object));
    }
}

FObjectTreeModel::Node* FObjectTreeModel::add(FManaged* object, Node& parent) {
    auto node = std::make_unique<Node>();
    node->object = object;
    mNodes.insert(object, node.get());
    return insert(parent, std::move(node), -1);
}

void FObjectTreeModel::placeParts(FManaged* object) {
    Node* whole = mNodes.value(object);
    if (!whole) {
        return;
    }
    QList<Node*> parts;
    const QList<FManaged*> present = object->getParts();
    if (!present.isEmpty()) {
        mWholes.insert(object);
    }
    for (FManaged* part : present) {
        Node* node = mNodes.value(part);
        if (!node && isShown(part)) {
            node = add(part, *whole);
        }
        // The first whole keeps a part that several have.
        const bool isFree = node && (node->parent == whole || !node->parent->object);
        if (isFree && !contains(*node, *whole)) {
            parts.append(node);
        }
    }
    for (std::size_t row = whole->children.size(); row-- > 0;) {
        Node& child = *whole->children[row];
        if (!parts.contains(&child)) {
            release(child);
        }
    }
    for (int row = 0; row < parts.size(); ++row) {
        Node& part = *parts.at(row);
        if (part.parent != whole || part.row != row) {
            Node* before = part.parent;
            move(part, *whole, row);
            forget(*before);
        }
    }
}

bool FObjectTreeModel::contains(const Node& ancestor, const Node& node) {
    for (const Node* at = &node; at; at = at->parent) {
        if (at == &ancestor) {
            return true;
        }
    }
    return false;
}

FObjectTreeModel::Node* FObjectTreeModel::groupOf(const FManaged* object) {
    const QString title = FClassLook::groupOf(object);
    if (title.isEmpty()) {
        return mpRoot.get();
    }
    Node*& group = mGroups[title];
    if (!group) {
        auto node = std::make_unique<Node>();
        node->title = title;
        group = insert(*mpRoot, std::move(node), -1);
    }
    return group;
}

// A group without objects goes.
void FObjectTreeModel::forget(Node& group) {
    if (!group.title.isEmpty() && group.children.empty()) {
        mGroups.remove(group.title);
        take(group);
    }
}

// ---- the nodes ----

void FObjectTreeModel::number(Node& parent, std::size_t from) {
    for (std::size_t row = from; row < parent.children.size(); ++row) {
        parent.children[row]->row = static_cast<int>(row);
    }
}

// Objects in the order of their creation, before groups in the order of their titles.
bool FObjectTreeModel::isBefore(const NodePointer& a, const NodePointer& b) {
    if (a->object && b->object) {
        return a->object->getDbId() < b->object->getDbId();
    }
    return a->object || (!b->object && a->title < b->title);
}

FObjectTreeModel::Node* FObjectTreeModel::insert(Node& parent, NodePointer node, int row) {
    auto& children = parent.children;
    const auto place =
        row < 0 ? std::upper_bound(children.begin(), children.end(), node, &isBefore) : children.begin() + row;
    const int at = static_cast<int>(place - children.begin());
    if (!mIsFilling) {
        beginInsertRows(indexOf(&parent), at, at);
    }
    node->parent = &parent;
    Node* inserted = children.insert(place, std::move(node))->get();
    number(parent, static_cast<std::size_t>(at));
    if (!mIsFilling) {
        endInsertRows();
    }
    return inserted;
}

FObjectTreeModel::NodePointer FObjectTreeModel::take(Node& node) {
    Node& parent = *node.parent;
    const int row = node.row;
    if (!mIsFilling) {
        beginRemoveRows(indexOf(&parent), row, row);
    }
    NodePointer taken = std::move(parent.children[static_cast<std::size_t>(row)]);
    parent.children.erase(parent.children.begin() + row);
    number(parent, static_cast<std::size_t>(row));
    if (!mIsFilling) {
        endRemoveRows();
    }
    return taken;
}

void FObjectTreeModel::move(Node& node, Node& parent, int row) {
    insert(parent, take(node), row);
}

// ---- the model of Qt ----

FObjectTreeModel::Node* FObjectTreeModel::nodeAt(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : mpRoot.get();
}

QModelIndex FObjectTreeModel::indexOf(const Node* node) const {
    return node == mpRoot.get() ? QModelIndex() : createIndex(node->row, 0, const_cast<Node*>(node));
}

FManaged* FObjectTreeModel::objectAt(const QModelIndex& index) const {
    return index.isValid() ? nodeAt(index)->object : nullptr;
}

QModelIndex FObjectTreeModel::indexOf(const FManaged* object) const {
    const Node* node = mNodes.value(object);
    return node ? indexOf(node) : QModelIndex();
}

QModelIndex FObjectTreeModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, nodeAt(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex FObjectTreeModel::parent(const QModelIndex& index) const {
    const Node* parent = index.isValid() ? nodeAt(index)->parent : nullptr;
    return parent ? indexOf(parent) : QModelIndex();
}

int FObjectTreeModel::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(nodeAt(parent)->children.size());
}

int FObjectTreeModel::columnCount(const QModelIndex& parent) const {
    Q_UNUSED(parent)
    return 1;
}

QVariant FObjectTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const Node& node = *nodeAt(index);
    if (!node.object) {
        return role == Qt::DisplayRole || role == nameRole ? QVariant(node.title)
               : role == Qt::ForegroundRole                ? FStateColor::of(FStateColor::State::Secondary)
                                                           : QVariant();
    }
    switch (role) {
        case Qt::DisplayRole:
            return displayText(*node.object);
        case Qt::EditRole:
        case nameRole:
            return node.object->getName();
        case Qt::DecorationRole:
            return FClassLook::iconOf(node.object);
        case Qt::ToolTipRole:
            return toolTipOf(*node.object);
        case Qt::AccessibleDescriptionRole:
            return FClassLook::wordFor(node.object);
        default:
            return {};
    }
}

bool FObjectTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    FManaged* object = objectAt(index);
    const QString wanted = value.toString();
    if (!object || role != Qt::EditRole || wanted.isEmpty() || wanted == object->getName()) {
        return false;
    }
    {
        const FUserStep step(QStringLiteral("rename"));
        object->setName(wanted);
    }
    if (object->getName() != wanted) {
        emit nameAdjusted(wanted, object->getName());
    }
    return true;
}

Qt::ItemFlags FObjectTreeModel::flags(const QModelIndex& index) const {
    if (!objectAt(index)) {
        return index.isValid() ? Qt::ItemFlags(Qt::ItemIsEnabled) : Qt::NoItemFlags;
    }
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
}

QStringList FObjectTreeModel::mimeTypes() const {
    return {FMerixCtrl::getFObjectMimeType()};
}

QMimeData* FObjectTreeModel::mimeData(const QModelIndexList& indexes) const {
    QList<FManaged*> objects;
    for (const QModelIndex& index : indexes) {
        if (FManaged* object = objectAt(index)) {
            objects.append(object);
        }
    }
    return FObjectMime::encode(objects);
}
