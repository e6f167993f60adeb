#include "host/run/FSetUpReport.h"

void FSetUpReport::log(const FSetUpCheck::Problems& problems) {
    QSet<QString> present;
    for (const FSetUpProblem& problem : problems) {
        const QString key = problem.key();
        present.insert(key);
        if (problem.isReportedByRun || mKnown.contains(key)) {
            continue;
        }
        if (problem.severity == FSetUpProblem::Severity::Warning) {
            // Counts the warning in strict mode.
            FLogMsg::warning(problem.object, problem.text, problem.remedy, problem.place);
        } else {
            problem.toMessage().send();
        }
        // A value that is wrong in one design of a loop and right in the next isn't reported again.
        if (problem.isOfValue) {
            mOfValues.insert(key);
        }
    }
    mKnown = present + mOfValues;
}
