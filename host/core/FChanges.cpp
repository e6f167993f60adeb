#include "host/core/FChanges.h"

FChanges* FChanges::instance() {
    // Never destroyed, like the objects that report to it.
    static auto* channel = new FChanges;
    return channel;
}
