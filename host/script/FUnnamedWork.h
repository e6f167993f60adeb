#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QStringList>

/**
 * The places of unsaved work on projects that were never saved: names of projects in a folder of the user's for the
 * state of programs. There is never a project of such a name, only what FAutosave keeps beside it.
 */
namespace FUnnamedWork {

/** A name that neither a session has nor unsaved work; empty if nothing can be written there. */
MERIX_EXPORT QString newName();
/** The names with unsaved work whose session is over, the newest first. */
MERIX_EXPORT QStringList left();
/** Removes the unsaved work of a name. */
MERIX_EXPORT void remove(const QString& name);

}  // namespace FUnnamedWork
