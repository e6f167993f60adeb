#include "host/core/FUserStep.h"

#include "host/core/FUserInterface.h"

void FUserStep::commitEdits() {
    static bool isCommitting = false;
    if (isCommitting || FHistory::instance()->inTransaction()) {
        return;
    }
    isCommitting = true;
    FUserInterface::instance()->commitEdits();
    isCommitting = false;
}

FUserStep::FUserStep(const QString& label) {
    commitEdits();
    FHistory::instance()->startUserStep(label);
    mBlocker.emplace();
}

FUserStep::~FUserStep() {
    if (mIsFailed) {
        FHistory::instance()->rollbackUserStep([this] { mBlocker.reset(); });
    } else {
        mBlocker.reset();
        FHistory::instance()->commitUserStep();
    }
}
