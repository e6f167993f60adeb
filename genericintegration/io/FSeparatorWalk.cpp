#include "genericintegration/io/FSeparatorWalk.h"

bool FSeparatorWalk::pass(int count) {
    for (; count > 0; --count) {
        const int match = next();
        if (match < 0) {
            return false;
        }
        const int after = match + mMatches.matchedLength();
        // An empty match at the same place repeats forever.
        if (after == mStart) {
            return true;
        }
        mStart = after;
    }
    return true;
}
