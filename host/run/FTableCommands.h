#pragma once

#include "host/core/FExport.h"

class FCmdTable;
class FTableData;
class QString;

/** The commands of tables. They warn about a row or column that the table doesn't have. */
namespace FTableCommands {

void declare(FCmdTable& table);

/** Warns, at the command in progress, if the table has no row of that name. Returns whether it has. */
MERIX_EXPORT bool checkRow(const FTableData& table, const QString& row);
/** The same for a row's number and a column's number. */
MERIX_EXPORT bool checkPlace(const FTableData& table, double row, double column);
/** The same for a column, by number or by name. */
MERIX_EXPORT bool checkColumn(const FTableData& table, int column);
MERIX_EXPORT bool checkColumn(const FTableData& table, const QString& column);

}  // namespace FTableCommands
