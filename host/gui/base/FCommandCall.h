#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <vector>

class FCmdRow;
class FMemberCmd;

/** Executes commands for windows, each call as one step of the history. */
namespace FCommandCall {

/** The step has the label of the command as the user interface shows it. */
MERIX_EXPORT FExprBase execute(const FCmdRow& row, const FExprBase& receiver,
                               const std::vector<FExprBase>& arguments = {});
/** The same with a clone of a command that has its receiver. */
MERIX_EXPORT FExprBase execute(const FMemberCmd& command, const std::vector<FExprBase>& arguments,
                               const QString& label);
/** What the user interface calls the command: its menu entry, else its label, else its name. */
MERIX_EXPORT QString labelOf(const FCmdRow& row);
/** The label of a step that sets a value, which tells it from others that set the same; a long value is cut. */
MERIX_EXPORT QString labelWith(const QString& what, const QString& value);

}  // namespace FCommandCall
