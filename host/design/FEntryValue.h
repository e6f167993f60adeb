#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

/** What entries hold. Numbers are doubles, also when they were written as integers. */

/**
 * The handle as the value of an entry: empty for script `NULL`, a double for an integer, and for a call that makes a
 * value whose parts stay expressions, such as `inputFile(…)`, the value itself. Nothing else is evaluated, and no file
 * is read.
 */
MERIX_EXPORT FExprBase entryValue(const FExprBase& given);

/**
 * A value is about to be changed in place, or was: the entry that holds it becomes part of the open step. A value
 * outside of entries changes without a step.
 */
void entryValueChanges(const FObject& value);

/**
 * A value of its own, since values are changed in place: a copy of a plain value; expressions, managed objects and
 * what can't be copied are shared.
 */
MERIX_EXPORT FExprBase copyOfValue(const FExprBase& value);

/**
 * The type of what a value gives; a parameter counts as what it holds. An expression whose type isn't known is
 * evaluated if that is safe without reading files.
 */
MERIX_EXPORT const FObject* typeOfValue(const FExprBase& value);
