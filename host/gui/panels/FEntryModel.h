#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/design/FConfiguration.h"
#include "host/run/FSetUpCheck.h"

#include <QAbstractItemModel>
#include <QTimer>

#include <memory>

struct FValueField;

/**
 * The entries of a configuration as a tree: groups and occurrences, the expression of each and what it gives at
 * present. A file or export has a row for each of its parts. Values are evaluated only where they are shown, and only
 * if no file has to be read for them. Text that was refused remains in its row until it is replaced.
 */
class MERIX_EXPORT FEntryModel : public QAbstractItemModel {
    Q_OBJECT

 public:
    enum Column { nameColumn, valueColumn, resultColumn, columns };
    /** What a part of a value can be chosen from, as a list of texts. */
    static constexpr int choicesRole = Qt::UserRole;
    /** Path of the entry. */
    static constexpr int pathRole = Qt::UserRole + 1;
    /** Why the text of the row was refused; empty if it wasn't. */
    static constexpr int faultRole = Qt::UserRole + 2;

    FEntryModel();
    ~FEntryModel() override;

    FConfiguration* configuration() const { return mConfiguration.ptr(); }
    /** Null shows nothing. */
    void setConfiguration(FConfiguration* configuration);
    /** While held, the rows don't follow the model. */
    void hold(bool isHeld);
    /** Drops the text that was refused in the row. */
    void forgetRefused(const QModelIndex& index);

    /** The entry of a row, or that whose value has the row as a part; null for no row. */
    FEntry* entryAt(const QModelIndex& index) const;
    /** The row of the entry of that path, as a configuration or definition spells it; invalid if there is none. */
    QModelIndex indexOf(const QString& path) const;
    /** The places of templates that use the entry, as name:line. */
    QStringList usesOf(const FEntry& entry) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
    /** The rows or their contents are those of the model again. */
    void followed();
    void usesFound();

 private:
    struct Node;

    void follow();
    void build();
    void addEntries(Node& parent, const FEntryHolder& holder);
    bool isBuiltAsModel(const Node& node) const;
    void tellChanged(const Node& node);
    void findUses();
    Node* nodeAt(const QModelIndex& index) const;
    QModelIndex indexOf(const Node& node, int column = 0) const;
    static QString nameOf(const Node& node);
    static bool isPartOfValue(const Node& node);
    static FExprBase valueOf(const Node& node);
    QString toolTipOf(const Node& node) const;
    QVariant textOf(const Node& node, int column) const;
    QVariant colorOf(const Node& node, int column) const;
    QVariant editTextOf(const Node& node, int column) const;

    FExpr<FConfiguration> mConfiguration;
    std::unique_ptr<Node> mpRoot;
    quint64 mVersion = 0;  //!< of the structure that the rows show
    FSetUpCheck::Uses mUses;
    QTimer mUsesTimer;
    bool mIsHeld = false;
    FQueuedCall mFollow{[this] { follow(); }};
};
