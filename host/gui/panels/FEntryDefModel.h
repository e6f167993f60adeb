#pragma once

#include "host/core/FExport.h"
#include "host/gui/panels/FEntryTreeModel.h"

/** The entries of a definition: groups, default values, types, and how often a configuration may have each. */
class MERIX_EXPORT FEntryDefModel : public FEntryTreeModel {
    Q_OBJECT

 public:
    enum Column { typeColumn = valueColumn + 1, countColumn, columns };

    /** Null shows nothing. */
    void setDefinition(FDefinition* definition) { setRoot(definition); }

    FDefinition* definition() const override { return static_cast<FDefinition*>(root()); }
    FEntryDef* definitionOf(const QModelIndex& index) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /** The type as users know it. */
    static QString typeOf(const FEntryDef& entry);
    /** How often a configuration may have the entry: "1", "0 to 3". */
    static QString countOf(const FEntryDef& entry);

 protected:
    bool mayEdit(const Node& node, int column) const override;
    QString textOf(const Node& node, int column) const override;
    bool isSecondary(const Node& node, int column) const override;
    QStringList detailsOf(const Node& node) const override;
    QString change(const Node& node, int column, const QString& text) override;

 private:
    static FEntryDef& entryOf(const Node& node);
};
