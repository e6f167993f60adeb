#include "host/run/FTableCommands.h"

#include "host/run/FResultsGeneric.h"
#include "host/run/FTableData.h"
#include "host/run/FValueListing.h"
#include "host/run/FValueOrigin.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"

namespace FTableCommands {
namespace {

using F = FTableData;

QString emptyRemedy(const F& table) {
    return table.getRowCount() == 0 ? QStringLiteral(
                                          "The table has no rows: its file could not be read, or nothing is "
                                          "marked in it")
                                    : QString();
}

/** A table whose numbers a script requests. */
const F& requested(const F& table) {
    if (const auto* results = dynamic_cast<const FResultsGeneric*>(table.getOwner())) {
        results->noteRequest(table);
    }
    return table;
}

double elementOf(const F& table, const QString& row, unsigned int column) {
    if (checkRow(table, row)) {
        checkPlace(table, table.findRow(row), column);
    }
    return requested(table).getElementAt(row, static_cast<int>(column));
}

FExpr<FObject> listOf(const QVector<double>& numbers) {
    auto* list = new FObjectList(FDouble::null());
    const FExpr<FObject> handle(list);
    for (const double number : numbers) {
        list->add(FExpr<FObject>(new FDouble(number)));
    }
    return handle;
}

/** The number of a row; -1, with a warning, if the table has no such row. */
int rowOf(const F& table, const QString& row) {
    return checkRow(table, row) ? table.findRow(row) : -1;
}
int rowOf(const F& table, unsigned int row) {
    return checkPlace(table, row, 0) ? static_cast<int>(row) : -1;
}

template <class Row>
FExpr<FObject> originOf(const F& table, const Row& row) {
    const int number = rowOf(table, row);
    return number < 0 ? FExpr<FObject>() : FExpr<FObject>(new FValueOrigin(table, number));
}

template <class Row>
QString textOf(const F& table, const Row& row) {
    return requested(table).getOrigin(rowOf(table, row)).text;
}

void elementCommands(FCmdTable& table) {
    const char* const name = "getElementAt";
    table
        .member<F>(name,
                   +[](const F& data, unsigned int row, unsigned int column) {
                       checkPlace(data, row, column);
                       return requested(data).getElementAt(static_cast<int>(row), static_cast<int>(column));
                   },
                   {"row", "column=0"})
        .query();
    table.member<F>(name, &elementOf, {"row header", "column=0"}).query();
    table
        .member<F>(name,
                   +[](const F& data, double row, const QString& column) {
                       checkColumn(data, column);
                       return requested(data).getElementAt(F::rowNumber(row), column);
                   },
                   {"row", "column header"})
        .query();
    table
        .member<F>(name,
                   +[](const F& data, const QString& row, const QString& column) {
                       checkRow(data, row);
                       checkColumn(data, column);
                       return requested(data).getElementAt(row, column);
                   },
                   {"row header", "column header"})
        .query();
}

}  // namespace

bool checkRow(const F& table, const QString& row) {
    if (table.findRow(row) >= 0) {
        return true;
    }
    const QString hint = didYouMean(row, table.getRowNames());
    const QString names = table.getRowNames().mid(0, 10).join(QStringLiteral(", "));
    FCmd::warnNow(table.getName(), QStringLiteral("%1 has no value \"%2\"%3").arg(table.getName(), row, hint),
                  table.getRowCount() == 0 ? emptyRemedy(table)
                  : hint.isEmpty()         ? QStringLiteral("The result is NaN. It has %1").arg(names)
                                           : QStringLiteral("The result is NaN"));
    return false;
}

bool checkPlace(const F& table, double row, double column) {
    bool found = false;
    table.getElementAt(F::rowNumber(row), F::rowNumber(column), &found);
    if (!found) {
        const QString has = row < table.getRowCount() ? QStringLiteral("column %1").arg(column)
                                                      : QStringLiteral("row %1").arg(row, 0, 'g', 16);
        FCmd::warnNow(table.getName(),
                      QStringLiteral("%1 has no %2; it has %3 rows and %4 columns, counted from 0")
                          .arg(table.getName(), has, QString::number(table.getRowCount()),
                               QString::number(table.getColumnCount())),
                      QStringLiteral("The result is NaN"));
    }
    return found;
}

bool checkColumn(const F& table, int column) {
    const bool exists = column >= 0 && column < table.getColumnCount();
    if (!exists) {
        FCmd::warnNow(table.getName(),
                      QStringLiteral("%1 has no column %2; it has %3 columns, counted from 0")
                          .arg(table.getName(), QString::number(column), QString::number(table.getColumnCount())),
                      QStringLiteral("The result is NaN"));
    }
    return exists;
}

bool checkColumn(const F& table, const QString& column) {
    const bool exists = table.hasColumn(column);
    if (!exists) {
        FCmd::warnNow(table.getName(), QStringLiteral("%1 has no column \"%2\"").arg(table.getName(), column),
                      QStringLiteral("The result is NaN. Give the number of the column, from 0"));
    }
    return exists;
}

void declare(FCmdTable& table) {
    elementCommands(table);
    table.member<F>("getRowCount", &F::getRowCount).query();
    table.member<F>("getColumnCount", &F::getColumnCount).query();
    table.member<F>("getRowName", &F::getRowName, {"row"}).query();
    table.member<F>("getRowNames", &F::getRowNames).query();
    table
        .member<F>("getColumn",
                   +[](const F& data, unsigned int column) {
                       checkColumn(data, static_cast<int>(column));
                       return listOf(requested(data).getColumn(static_cast<int>(column)));
                   },
                   {"column=0"})
        .returns(FCmdTypeOf<QList<FExpr<FObject>>>::type())
        .query();
    const FCmdType origin = FCmdTypeOf<FExpr<FValueOrigin>>::type();
    table.member<F>("getOrigin", &originOf<QString>, {"row header"}).returns(origin).query();
    table.member<F>("getOrigin", &originOf<unsigned int>, {"row"}).returns(origin).query();
    table.member<F>("getText", &textOf<QString>, {"row header"}).query();
    table.member<F>("getText", &textOf<unsigned int>, {"row"}).query();
    table
        .member<F>(
            "toCsv", +[](const F& data) { return requested(data).toCsv(); })
        .query();
    table
        .member<F>(
            "getListing", +[](const F& data) { return FValueListing(requested(data)).toText(); })
        .query();
}

}  // namespace FTableCommands
