#include "host/core/FMerixCtrl.h"

FMerixCtrl* FMerixCtrl::instance() {
    static FMerixCtrl control;
    return &control;
}
