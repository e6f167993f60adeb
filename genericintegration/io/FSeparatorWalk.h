#pragma once

#include "genericintegration/io/FSeparatorMatches.h"

#include <QString>

/** Passes over the separators of a line. */
class FSeparatorWalk {
 public:
    /** Separator and text must outlive this object. */
    FSeparatorWalk(const FSeparator& separator, const QString& text, int start = 0)
        : mMatches(separator, text), mStart(start) {}

    /** Passes a number of separators. False if there are fewer. */
    bool pass(int count);

    /** End of the last separator that was passed. */
    int start() const { return mStart; }

    /** Start of the next separator, or -1. */
    int next() { return mMatches.find(mStart); }
    /** Length of the separator that `next` found last. */
    int matchedLength() const { return mMatches.matchedLength(); }

    /** Whether the line was given up because it may take too long: it counts as one column. */
    bool isGivenUp() const { return mMatches.isGivenUp(); }

 private:
    FSeparatorMatches mMatches;
    int mStart;
};
