#pragma once

#include <sys/types.h>

/**
 * What is started: the folder it works in, the files of its three streams (relative ones lie in that folder) and the
 * program's path followed by its arguments, ended by a null pointer.
 */
struct FLaunch {
    const char* folder;
    const char* input;
    const char* output;
    const char* error;
    char** command;
};

/** The program's process, or the step that failed ("folder", "input", "output", "error", "program") with its errno. */
struct FLaunchResult {
    pid_t pid = -1;
    const char* failedStep = nullptr;
    int errorNumber = 0;
};

/**
 * Starts the program without a shell, as the leader of its own process group, with the streams redirected and no
 * other descriptor of ours. Returns when the program runs or can't. Folder and streams of the calling process become
 * those of the program. An output file is made or emptied, and written at its end.
 */
FLaunchResult launch(const FLaunch& what);
