#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/run/FTableData.h"

#include <QList>
#include <QStringList>

struct FSuccessRules;

/** Checks the rules about the numbers that a run's results have read. */
namespace FNumberCheck {

/**
 * The rules that are broken, each as a sentence for the user: missing anchors, suspicious numbers, required values that
 * no table has, and those that are NaN in any column of a table.
 */
MERIX_EXPORT QStringList faults(const FSuccessRules& rules, const QList<FExpr<FTableData>>& tables);

/** What the rules accept in a number without a warning. */
MERIX_EXPORT FNumberFlags accepted(const FSuccessRules& rules);

}  // namespace FNumberCheck
