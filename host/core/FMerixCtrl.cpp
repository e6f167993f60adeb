#include "host/core/FMerixCtrl.h"

#include "host/core/FChanges.h"

FMerixCtrl* FMerixCtrl::instance() {
    static FMerixCtrl control;
    return &control;
}

FProjectLoading::FProjectLoading() {
    ++FMerixCtrl::instance()->mLoading;
}

FProjectLoading::~FProjectLoading() {
    if (--FMerixCtrl::instance()->mLoading == 0) {
        emit FChanges::instance()->loadingEnded();
    }
}
