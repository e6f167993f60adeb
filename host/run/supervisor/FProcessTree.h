#pragma once

#include <sys/types.h>

#include <vector>

struct FProcessEntry {
    pid_t pid;
    pid_t group;
};

/**
 * The processes that descend from one, parents before their children, without that one itself, in whatever group or
 * session they are. Reads the state of all processes of the machine once; what starts or ends meanwhile may be missed.
 */
std::vector<FProcessEntry> descendants(pid_t ancestor);
