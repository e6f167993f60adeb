#include "host/core/FViewCtrl.h"

FViewCtrl* FViewCtrl::instance() {
    static FViewCtrl control;
    return &control;
}

void FViewCtrl::prepareModalDialog(void* parent) {
    Q_UNUSED(parent)
    FUserInterface::instance()->setModalDialog(true);
}

void FViewCtrl::finalizeModalDialog() {
    FUserInterface::instance()->setModalDialog(false);
}
