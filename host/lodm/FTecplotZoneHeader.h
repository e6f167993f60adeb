#pragma once

#include "host/lodm/FTecplotTokens.h"

#include <QString>

/** What the header of a zone says about its numbers. */
struct FTecplotZoneHeader {
    QString title{};
    bool isBlock = false;  //!< all points of the first variable, then those of the second …; else point by point

    /** Takes over a pair of the header. Returns a fault: why the zone can't be read; empty if it can. */
    QString set(const FTecplotToken& key, const FTecplotToken& value);

    /** Number of points; -1 if the header doesn't give it, at most a large number. */
    qint64 points() const;
    /** How many numbers follow those of the points. */
    qint64 elementNumbers() const { return mElements * mNodesPerElement; }

 private:
    QString setCount(const FTecplotToken& key, const FTecplotToken& value);
    QString setPacking(const FTecplotToken& value);
    QString setType(const FTecplotToken& value);

    qint64 mSize[3] = {-1, -1, -1};
    qint64 mNodes = -1;
    qint64 mElements = 0;
    int mNodesPerElement = 0;
};
