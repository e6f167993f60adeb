#pragma once

/** Loads the plug-ins: what they bring is there as soon as they are loaded. */
class FPluginLoader {
 public:
    /**
     * Loads every library of the plug-in folders: those that the environment variable MERIX_PLUGIN_PATH names, or
     * `plugins` beside the program, or `../lib/merix` of an installation. False, with a message, if one can't be
     * loaded.
     */
    static bool loadAll();
};
