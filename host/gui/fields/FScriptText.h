#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QString>

/** Script text in fields: what a user types and what a value is shown as. */
namespace FScriptText {

/**
 * The text as an expression that an object can keep; script `NULL` for a blank text.
 * @param fault  gets the reason if the text can't be read; the result is empty then
 */
MERIX_EXPORT FExprBase bind(const QString& text, QString& fault);

/** The text of a value or expression, from which `bind` makes it again; empty for an empty handle. */
MERIX_EXPORT QString of(const FExprBase& value);

/**
 * Whether an expression asks for something of results that there aren't, as before the first run. To evaluate it would
 * log a warning each time.
 */
MERIX_EXPORT bool lacksResults(const FExprBase& value);

/**
 * What an expression gives at present; empty if it says so itself, as a number does. No file is read and nothing is run
 * for it: where that would be needed, the text says that the value isn't known.
 */
MERIX_EXPORT QString evaluated(const FExprBase& value);

}  // namespace FScriptText
