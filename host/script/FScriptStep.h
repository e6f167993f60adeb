#pragma once

#include "host/core/FLogMsg.h"
#include "host/core/FUserStep.h"

#include <exception>

/** The step of one statement of a script: taken back if the statement fails, or if strict mode made an error of a
 * warning. */
class FScriptStep {
 public:
    explicit FScriptStep(const QString& label) : mStep(label) {}
    ~FScriptStep() {
        if (std::uncaught_exceptions() > mExceptions) {
            mStep.rollback();  // there isn't enough memory for the statement
        }
    }
    FScriptStep(const FScriptStep&) = delete;
    FScriptStep& operator=(const FScriptStep&) = delete;

    /** Ends the statement, which was executed without an error or not; returns whether it has succeeded. */
    bool end(bool good) {
        if (FLogMsg::isStrict()) {
            // The updates that wait for the end of the step may warn.
            FImmediateUpdateBlocker::resume(FImmediateUpdateBlocker::suspend());
        }
        const bool isKept = good && FLogMsg::getStrictErrors() == mStrictErrors;
        if (!isKept) {
            mStep.rollback();
        }
        return isKept;
    }

 private:
    FUserStep mStep;
    int mExceptions = std::uncaught_exceptions();
    int mStrictErrors = FLogMsg::getStrictErrors();
};
