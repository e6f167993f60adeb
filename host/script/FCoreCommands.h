#pragma once

/** Gives the classes of the core their commands. The core itself doesn't know commands. */
void registerCoreCommands();
