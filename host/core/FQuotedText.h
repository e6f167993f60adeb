#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <optional>

/**
 * Texts as the script language writes them: between quotes, with a backslash before each quote and each backslash.
 * When read, a backslash before any other character stands for itself, so that "C:\temp" needs no care.
 * Everything else, line ends among it, stands for itself. All functions are linear.
 */

/** `text` between quotes; unquoteText gives exactly `text` back. */
MERIX_EXPORT QString quoteText(const QString& text);

/** The text that `quoted` stands for; nothing if `quoted` isn't one text from its first quote to its last. */
MERIX_EXPORT std::optional<QString> unquoteText(QStringView quoted);

/** Position of the quote that closes the text whose opening quote stands at `open`, or -1. */
MERIX_EXPORT int closingQuote(QStringView text, int open);
