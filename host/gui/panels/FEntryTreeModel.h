#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/design/FDefinition.h"
#include "host/run/FSetUpCheck.h"

#include <QAbstractItemModel>
#include <QTimer>

#include <memory>

class FEntryDef;
struct FValueField;

/**
 * The entries of a definition or configuration as a tree, which follows the model. Names and values are edited in
 * place; text that was refused remains in its row until it is replaced.
 */
class MERIX_EXPORT FEntryTreeModel : public QAbstractItemModel {
    Q_OBJECT

 public:
    /** The first columns of each such tree. */
    enum CommonColumn { nameColumn, valueColumn };
    /** What a part of a value can be chosen from, as a list of texts. */
    static constexpr int choicesRole = Qt::UserRole;
    /** Path of the entry. */
    static constexpr int pathRole = Qt::UserRole + 1;
    /** Why the text of the row was refused; empty if it wasn't. */
    static constexpr int faultRole = Qt::UserRole + 2;

    ~FEntryTreeModel() override;

    /** The definition whose entries templates name; null if there is none. */
    virtual FDefinition* definition() const = 0;
    /** What the definition says of an entry; null if it is no longer in it. */
    virtual FEntryDef* definitionOf(const QModelIndex& index) const = 0;
    /** While held, the rows don't follow the model. */
    void hold(bool isHeld);
    /** Shows the model as it is now; otherwise done from the event loop. */
    void follow();
    /** The first cell that shows a text which was refused; invalid if there is none. */
    QModelIndex refused() const;
    /** What the cell would show without the text that was refused. */
    QString textInModel(const QModelIndex& index) const;
    /** Drops the text that was refused in the row. */
    void forgetRefused(const QModelIndex& index);
    /** The row of the entry of that path, as a configuration or definition spells it; invalid if there is none. */
    QModelIndex indexOf(const QString& path) const;
    /** The places of templates that use the entry, as name:line. */
    QStringList usesOf(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
    /** The rows or their contents are those of the model again. */
    void followed();
    void usesFound();

 protected:
    struct Node {
        FExpr<FEntryBase> entry;             //!< empty for the root
        const FValueField* field = nullptr;  //!< null for the row of the entry itself
        Node* parent = nullptr;
        int row = 0;
        std::vector<std::unique_ptr<Node>> children;
        QString refused;  //!< text that was refused
        QString fault;    //!< the reason
        int refusedColumn = -1;

        FEntryBase* object() const { return FEntryBase::of(entry); }
    };

    struct Header {
        const char* title;
        const char* tip;
    };

    FEntryTreeModel();

    /** What the header of a column shows; its tool tip explains the title. */
    static QVariant headerOf(const std::vector<Header>& headers, int section, int role);
    FDefinitionBase* root() const { return mRoot.ptr(); }
    /** Null shows nothing. */
    void setRoot(FDefinitionBase* root);
    Node* nodeAt(const QModelIndex& index) const;

    /** The parts of an entry's value that have rows below it. */
    virtual const std::vector<FValueField>& fieldsOf(const FEntryBase& entry) const;
    virtual bool mayEdit(const Node& node, int column) const = 0;
    virtual QString textOf(const Node& node, int column) const = 0;
    /** What an editor starts with. */
    virtual QString editTextOf(const Node& node, int column) const { return textOf(node, column); }
    virtual QStringList choicesOf(const Node& node, int column) const;
    /** Whether the text is only secondary, such as a default. */
    virtual bool isSecondary(const Node& node, int column) const = 0;
    /** What a screen reader adds to the text. */
    virtual QString remarkOf(const Node& node, int column) const;
    /** The lines of the tool tip between the reason of a refusal and the places in templates. */
    virtual QStringList detailsOf(const Node& node) const = 0;
    /** Takes over what was entered; the reason if it is refused. */
    virtual QString change(const Node& node, int column, const QString& text) = 0;

 private:
    void build();
    void addEntries(Node& parent, const FEntryHolder& holder);
    bool isBuiltAsModel(const Node& node) const;
    void tellChanged(const Node& node);
    QModelIndex refusedBelow(const Node& node) const;
    void findUses();
    QModelIndex indexOf(const Node& node, int column = 0) const;
    QString toolTipOf(const QModelIndex& index) const;

    FExpr<FDefinitionBase> mRoot;
    std::unique_ptr<Node> mpTop;
    quint64 mVersion = 0;  //!< of the structure that the rows show
    FSetUpCheck::Uses mUses;
    QTimer mUsesTimer;
    bool mIsHeld = false;
    FQueuedCall mFollow{[this] { follow(); }};
};
