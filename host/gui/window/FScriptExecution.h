#pragma once

#include <QElapsedTimer>

#include <functional>

/**
 * The execution of a script for a window. Events are handled between its statements, else a script that doesn't wait
 * for runs couldn't be stopped; the window takes no other input meanwhile.
 */
class FScriptExecution {
 public:
    /** Calls a function that executes a script. False if the script was stopped. */
    bool execute(const std::function<void()>& function);
    /** Ends the script after its present statement; does nothing if none is executed. */
    void stop();
    bool isRunning() const { return mIsRunning; }

 private:
    void takeInput();

    bool mIsRunning = false;
    bool mIsStopped = false;
    QElapsedTimer mSinceInput;
};
