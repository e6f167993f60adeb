#pragma once

#include "host/core/FExport.h"
#include "host/design/FConfiguration.h"
#include "host/gui/panels/FEntryTreeModel.h"

/**
 * The entries of a configuration: groups and occurrences, the expression of each and what it gives at present. A file
 * or export has a row for each of its parts. Values are evaluated only where they are shown, and only if no file has to
 * be read for them.
 */
class MERIX_EXPORT FEntryModel : public FEntryTreeModel {
    Q_OBJECT

 public:
    enum Column { resultColumn = valueColumn + 1, columns };

    FConfiguration* configuration() const { return static_cast<FConfiguration*>(root()); }
    /** Null shows nothing. */
    void setConfiguration(FConfiguration* configuration) { setRoot(configuration); }
    /** The entry of a row, or that whose value has the row as a part; null for no row. */
    FEntry* entryAt(const QModelIndex& index) const;

    FDefinition* definition() const override;
    FEntryDef* definitionOf(const QModelIndex& index) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 protected:
    const std::vector<FValueField>& fieldsOf(const FEntryBase& entry) const override;
    bool mayEdit(const Node& node, int column) const override;
    QString textOf(const Node& node, int column) const override;
    QString editTextOf(const Node& node, int column) const override;
    QStringList choicesOf(const Node& node, int column) const override;
    bool isSecondary(const Node& node, int column) const override;
    QString remarkOf(const Node& node, int column) const override;
    QStringList detailsOf(const Node& node) const override;
    QString change(const Node& node, int column, const QString& text) override;

 private:
    static FEntry& entryOf(const Node& node) { return *static_cast<FEntry*>(node.object()); }
    static bool isPartOfValue(const Node& node);
    static FExprBase valueOf(const Node& node);
    static bool isDefault(const Node& node, int column);
};
