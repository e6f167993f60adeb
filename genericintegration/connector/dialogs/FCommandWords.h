#pragma once

#include <QStringList>

/** A command line as its words. */
namespace FCommandWords {

/**
 * The words of a command as a user types it in a terminal: separated by blanks, unless they are between single or
 * double quotes or after a backslash. Between single quotes, a backslash is an ordinary character; between double
 * quotes, it is one unless a quote or a backslash follows. Nothing is expanded.
 */
QStringList split(const QString& command);

}  // namespace FCommandWords
