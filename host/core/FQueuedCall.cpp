#include "host/core/FQueuedCall.h"

void FQueuedCall::request() {
    if (mIsRequested) {
        return;
    }
    mIsRequested = true;
    const auto run = [this] {
        mIsRequested = false;  // the call may request the next one
        mCall();
    };
    QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}
