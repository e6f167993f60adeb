#include "genericintegration/io/FColumnPlace.h"

#include "genericintegration/io/FSeparatorWalk.h"

FColumnPlace FColumnPlace::find(const FSeparator& separator, const QString& line, int start, int column,
                                bool findNumbers) {
    FSeparatorWalk walk(separator, line, start);
    if (!walk.pass(column)) {
        return {-1, 0, false};
    }
    const int match = walk.next();
    if (findNumbers) {
        return match < 0 ? FColumnPlace{walk.start(), 0, false} : FColumnPlace{match, walk.matchedLength(), true};
    }
    return {walk.start(), (match < 0 ? line.size() : match) - walk.start(), true};
}
