#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/gui/base/FNavigator.h"
#include "host/run/FTableData.h"

#include <QAbstractItemModel>

#include <vector>

/**
 * A table of results: for each value its number, its text in the file, what is unusual about it, and its place. Below
 * a mean are the rows that it was made of. Beside the numbers there may be those of another run, with the difference.
 */
class MERIX_EXPORT FTableModel : public QAbstractItemModel {
    Q_OBJECT

 public:
    enum class Kind { Name, Value, Before, Difference, Text, Remark, Place };

    /**
     * @param table     empty for no rows
     * @param before    the same table of another run; empty for none
     * @param title     of the column with the numbers of that run
     * @param accepted  flags that aren't suspicious
     */
    void setTable(const FExpr<FTableData>& table, const FExpr<FTableData>& before, const QString& title,
                  FNumberFlags accepted);

    Kind kindOf(int column) const { return mColumns[static_cast<std::size_t>(column)].kind; }
    /** The place of a row in its file, whose name is relative to the folder of the run; line 0 if there is none. */
    FNavigator::Place placeOf(const QModelIndex& index) const;
    /** The rows of these indexes, all if there are none, as CSV under a header line. */
    QString toCsv(const QModelIndexList& rows) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
    struct Column {
        Kind kind;
        int number = 0;  //!< of the table, for those with numbers
        QString title{};
    };
    enum class Remarkable { No, Suspicious, Missing };

    void makeColumns();
    Remarkable judge(int row) const;
    double number(int row, int column) const;
    double before(int row, int column) const;
    QString textOf(int row, const Column& column) const;
    /** Of a row below a mean. */
    QString partText(int row, int part, Kind kind) const;
    QVariant lookOf(int row, const Column& column, int role) const;

    FExpr<FTableData> mTable;
    FExpr<FTableData> mBefore;
    QString mBeforeTitle;
    FNumberFlags mAccepted;
    std::vector<Column> mColumns;
};
