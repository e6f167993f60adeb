#pragma once

#include <sys/types.h>

#include <vector>

struct FProcessEntry {
    pid_t pid;
    pid_t group;
    bool hasEnded;  //!< nobody has collected its exit code yet
};

/**
 * The descendants of a process, parents before their children, in any group or session. Reads the state of all
 * processes of the machine once; processes that start or end meanwhile may be missed.
 */
std::vector<FProcessEntry> descendants(pid_t ancestor);
