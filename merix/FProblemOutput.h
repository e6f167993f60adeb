#pragma once

#include "host/run/FSetUpCheck.h"

/** Problems of set-ups as text for the standard output. */
class FProblemOutput {
 public:
    explicit FProblemOutput(const FSetUpCheck::Problems& problems);

    bool hasErrors() const { return mErrors > 0; }
    /** A line for each problem, and one with their number. */
    QString toText() const;
    QString toJson() const;

 private:
    FSetUpCheck::Problems mProblems;  //!< each once
    int mErrors = 0;
    int mWarnings = 0;
};
