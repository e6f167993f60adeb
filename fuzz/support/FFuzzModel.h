#pragma once

#include <QByteArray>

/** The model of a fuzz target. */
namespace FFuzzModel {

/** Makes the application and the prototypes; messages to the user are dropped from now on. */
void prepare();
/** Takes away all objects. */
void clear();

/**
 * Restores a project from its text and touches no file, or the program ends.
 * @return how many errors were told, or -1 if the text was refused
 * @param tells  whether the errors go to the standard error
 */
int restore(const QByteArray& project, bool tells = false);

}  // namespace FFuzzModel
