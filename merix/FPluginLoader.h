#pragma once

/** Loads the plug-ins. Their types and commands are available as soon as they are loaded. */
class FPluginLoader {
 public:
    /**
     * Loads every library in the plug-in folders: those listed in the environment variable MERIX_PLUGIN_PATH, or, if
     * it is empty, `plugins` beside the program and `../lib/merix/plugins` of an installation. Returns false, with a
     * message, if one can't be loaded.
     */
    static bool loadAll();
};
