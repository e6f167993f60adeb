#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QSet>

#include <memory>

class FManaged;

/**
 * The objects of the model as a tree: parts below what they belong to (FManaged::getParts), all others by the group of
 * their class. An object is there once. Follows FChanges: an object that leaves the model goes at once, everything else
 * follows from the event loop.
 */
class MERIX_EXPORT FObjectTreeModel : public QAbstractItemModel {
    Q_OBJECT

 public:
    /** The name without the value, for a filter. */
    static constexpr int nameRole = Qt::UserRole;

    FObjectTreeModel();
    ~FObjectTreeModel() override;

    /** Null for a group. */
    FManaged* objectAt(const QModelIndex& index) const;
    /** Invalid if the tree doesn't show the object. */
    QModelIndex indexOf(const FManaged* object) const;
    /** While held, the tree doesn't follow the model, except that objects which leave it go. */
    void hold(bool isHeld);
    /** Shows the model as it is now; otherwise done from the event loop. */
    void follow();

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction | Qt::LinkAction; }

 signals:
    /** A name that the user typed was taken or not legal; the object has another one now. */
    void nameAdjusted(const QString& wanted, const QString& given);

 private:
    struct Node;
    using NodePointer = std::unique_ptr<Node>;

    void objectLeft(FManaged* object);
    void rebuild();
    void fillWith(const QList<FManaged*>& objects);
    void place(FManaged* object);
    void placeParts(FManaged* object);
    bool isShown(const FManaged* object) const;
    /** Whether the object is shown without being a part of another one. */
    bool isShownAlone(const FManaged* object) const;
    Node* add(FManaged* object, Node& parent);
    void release(Node& node);
    void remove(Node& node);
    Node* groupOf(const FManaged* object);
    QModelIndex indexOf(const Node* node) const;
    Node* nodeAt(const QModelIndex& index) const;
    Node* insert(Node& parent, NodePointer node, int row);
    NodePointer take(Node& node);
    void move(Node& node, Node& parent, int row);
    static bool contains(const Node& ancestor, const Node& node);
    static bool isBefore(const NodePointer& a, const NodePointer& b);
    static void number(Node& parent, std::size_t from);
    void forget(Node& group);

    NodePointer mpRoot;
    QHash<const FManaged*, Node*> mNodes;
    QHash<QString, Node*> mGroups;
    QSet<FManaged*> mWholes;  //!< objects that have or had parts
    QSet<FManaged*> mEntered;
    QSet<FManaged*> mChanged;
    int mHolds = 0;
    bool mIsFilling = false;  //!< the views aren't notified
    FQueuedCall mFollow{[this] { follow(); }};
};
