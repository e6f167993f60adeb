#include "host/gui/window/FUnsavedWork.h"

#include "host/core/FChanges.h"

FUnsavedWork::FUnsavedWork() {
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::stepDone, this, &FUnsavedWork::done);
    connect(changes, &FChanges::stepJoined, this, &FUnsavedWork::joined);
    connect(changes, &FChanges::stepUndone, this, [this] { moved(-1); });
    connect(changes, &FChanges::stepRedone, this, [this] { moved(1); });
    connect(changes, &FChanges::projectSaved, this, &FUnsavedWork::saved);
    connect(changes, &FChanges::projectOpened, this, &FUnsavedWork::saved);
    connect(changes, &FChanges::projectClosed, this, &FUnsavedWork::saved);
}

void FUnsavedWork::assume() {
    mSavedPosition = nowhere;
    emit changed();
}

void FUnsavedWork::done() {
    if (mPosition < mSavedPosition) {
        mSavedPosition = nowhere;  // the steps back to it can't be redone any more
    }
    moved(1);
}

void FUnsavedWork::joined() {
    if (mPosition == mSavedPosition) {
        mSavedPosition = nowhere;  // what was saved is in the middle of a step now
    }
    moved(-1);
}

void FUnsavedWork::moved(int steps) {
    mPosition += steps;
    emit changed();
}

void FUnsavedWork::saved() {
    mSavedPosition = mPosition;
    emit changed();
}
