#include "host/core/FHold.h"

#include <QMap>

namespace {

/** How many holds there are of each part. */
QMap<FUserInterface::What, int>& holds() {
    static QMap<FUserInterface::What, int> counts;
    return counts;
}

}  // namespace

FHold::FHold(FUserInterface::What what) : mWhat(what) {
    if (holds()[what]++ == 0) {
        FUserInterface::instance()->hold(what, true);
    }
}

FHold::~FHold() {
    if (--holds()[mWhat] == 0) {
        FUserInterface::instance()->hold(mWhat, false);
    }
}
