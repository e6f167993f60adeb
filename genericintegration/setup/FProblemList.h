#pragma once

#include "host/run/FSetUpCheck.h"

/** Collects the problems of one set-up, in the order in which they were found. */
class FProblemList {
 public:
    using Severity = FSetUpProblem::Severity;

    /** Adds a problem, which the caller may complete. */
    FSetUpProblem& add(Severity severity, const QString& object, const QString& text, const QString& remedy,
                       const QString& place = QString()) {
        mProblems.append({severity, object, place, text, remedy});
        return mProblems.last();
    }
    FSetUpProblem& error(const QString& object, const QString& text, const QString& remedy,
                         const QString& place = QString()) {
        return add(Severity::Error, object, text, remedy, place);
    }
    FSetUpProblem& warning(const QString& object, const QString& text, const QString& remedy,
                           const QString& place = QString()) {
        return add(Severity::Warning, object, text, remedy, place);
    }

    const FSetUpCheck::Problems& all() const { return mProblems; }

 private:
    FSetUpCheck::Problems mProblems;
};
