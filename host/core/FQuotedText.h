#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <optional>

/**
 * Texts as the script language writes them: between quotes, with a backslash before each quote and each backslash.
 * A backslash before any other character is read as a backslash, so "C:\temp" needs no escaping. All other characters,
 * including line ends, are read unchanged. All functions take linear time.
 */

/** `text` between quotes; unquoteText gives exactly `text` back. */
MERIX_EXPORT QString quoteText(const QString& text);

/** The text between the quotes, with escapes replaced; nothing if `quoted` isn't one text from its first quote to its
 * last. */
MERIX_EXPORT std::optional<QString> unquoteText(QStringView quoted);

/** Position of the quote that closes the text whose opening quote is at `open`, or -1. */
MERIX_EXPORT int closingQuote(QStringView text, int open);
