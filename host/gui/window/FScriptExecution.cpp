#include "host/gui/window/FScriptExecution.h"

#include "host/script/FCmdInput.h"

#include <QEventLoop>
#include <QTimer>

bool FScriptExecution::execute(const std::function<void()>& function) {
    mIsRunning = true;
    mIsStopped = false;
    mSinceInput.start();
    FCmdInput::setPause([this] { takeInput(); });
    function();
    FCmdInput::setPause({});
    mIsRunning = false;
    return !mIsStopped;
}

void FScriptExecution::stop() {
    if (FCmdInput* script = FCmdInput::current(); script && mIsRunning) {
        mIsStopped = true;
        script->requestExit(0);
    }
}

void FScriptExecution::takeInput() {
    constexpr qint64 interval = 100;  // milliseconds
    if (mSinceInput.elapsed() >= interval) {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
        loop.exec();
        mSinceInput.start();
    }
}
