#pragma once

#include <QByteArray>

#include <functional>

/** The model of a fuzz target. */
namespace FFuzzModel {

/** Makes the application and the prototypes; messages to the user are dropped from now on. */
void prepare();
/** Takes away all objects. */
void clear();

/**
 * Executes what touches no file; anything else ends the program.
 * @return how many errors were reported
 * @param tells  whether all messages go to the standard error
 */
int guarded(const std::function<void()>& action, bool tells);

/** Restores a project from its text, guarded. Returns how many errors there were, or -1 if the text was refused. */
int restore(const QByteArray& project, bool tells = false);

}  // namespace FFuzzModel
