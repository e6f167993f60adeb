#pragma once

#include <sys/types.h>

/**
 * A program to start: its working folder, the files of its three streams (relative names start at that folder), and its
 * path followed by its arguments, ended by a null pointer.
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
 * Starts the program without a shell, as the leader of its own process group, with the streams redirected and no other
 * open descriptor. Returns when the program is running or couldn't be started. The calling process takes over the
 * folder and the streams, too. An output file is created or emptied, and opened for appending.
 */
FLaunchResult launch(const FLaunch& what);
