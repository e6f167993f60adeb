#include "host/core/FViewCtrl.h"

FViewCtrl* FViewCtrl::instance() {
    static FViewCtrl control;
    return &control;
}
