#include "host/gui/base/FStepJoiner.h"

#include "host/core/FChanges.h"
#include "host/core/FUserStep.h"

#include <QApplication>
#include <QWidget>

FStepJoiner::FStepJoiner() {
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::stepDone, this, &FStepJoiner::done);
    for (const auto signal : {&FChanges::stepUndone, &FChanges::stepRedone, &FChanges::stepTakenBack,
                              &FChanges::projectSaved, &FChanges::projectOpened}) {
        connect(changes, signal, this, &FStepJoiner::end);
    }
    connect(qApp, &QApplication::focusChanged, this, &FStepJoiner::end);
}

void FStepJoiner::join(FUserStep& step, const QString& key) {
    constexpr qint64 longestPause = 2000;  // milliseconds
    if (!mKey.isNull() && key == mKey && mSinceLast.elapsed() <= longestPause) {
        step.joinLast();
    }
    mKey = key;
    mIsOpen = true;
}

void FStepJoiner::end() {
    mKey = QString();
}

void FStepJoiner::done() {
    if (mIsOpen) {
        mSinceLast.start();
    } else {
        end();
    }
    mIsOpen = false;
}
