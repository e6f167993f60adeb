#pragma once

#include "host/core/FExport.h"
#include "host/run/FNumberFlag.h"

class FTableData;
class QString;

/** The host's report on the numbers that results read from a file. */
namespace FValueReport {

/**
 * Logs one grouped message about the suspicious and missing numbers of a table, and one about the file as a whole;
 * nothing for a table without flags. An invalid separator is reported once for each table name and expression.
 *
 * @param source   the object that reports
 * @param isNote   whether it is only a note, as for the files of a run that failed
 * @param accepted flags that aren't reported for numbers; a NaN is always reported with its reason
 * @param changed  the entries that differ from the run before, so that the messages of a loop of runs tell the runs
 *                 apart; may be empty
 * @param earlier  the last message about this table, which isn't repeated; receives the new one
 */
MERIX_EXPORT void log(const FTableData& table, const QString& source, bool isNote, FNumberFlags accepted,
                      const QString& changed, QString& earlier);

}  // namespace FValueReport
