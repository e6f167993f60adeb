#pragma once

#include "host/core/FExport.h"

#include <QStringList>

struct FSuccessRules;

/**
 * Checks the rules about texts in the files of a run that has ended.
 *
 * Texts are compared exactly, also in case, and a text may span lines. A file that can't be read breaks its rules,
 * since they can't be checked, unless it is optional and missing. Each file is read once.
 */
namespace FTextCheck {

/** The rules that are broken, each as a sentence for the user, in the order of the rules. */
MERIX_EXPORT QStringList faults(const FSuccessRules& rules, const QString& folder);

}  // namespace FTextCheck
