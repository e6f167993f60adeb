#include "genericintegration/io/FSeparatorWalk.h"

bool FSeparatorWalk::pass(int count) {
    for (; count > 0; --count) {
        const int match = next();
        if (match < 0) {
            return false;
        }
        const int behind = match + mSeparator.matchedLength();
        // An empty match in the same place will come again each time.
        if (behind == mStart) {
            return true;
        }
        mStart = behind;
    }
    return true;
}
