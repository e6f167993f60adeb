#include "host/gui/base/FProblemWatch.h"

#include "host/core/FChanges.h"
#include "host/core/FObjectManager.h"
#include "host/run/FExternComputation.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr int usualDelay = 300;

}  // namespace

std::shared_ptr<FProblemWatch> FProblemWatch::get() {
    static std::weak_ptr<FProblemWatch> present;
    std::shared_ptr<FProblemWatch> watch = present.lock();
    if (!watch) {
        watch.reset(new FProblemWatch);
        present = watch;
    }
    return watch;
}

FProblemWatch::FProblemWatch() {
    mTimer.setSingleShot(true);
    mTimer.setInterval(usualDelay);
    connect(&mTimer, &QTimer::timeout, this, &FProblemWatch::check);
    const FChanges* changes = FChanges::instance();
    const auto checkSoon = [this] { mTimer.start(); };
    for (const auto signal :
         {&FChanges::stepDone, &FChanges::stepUndone, &FChanges::stepRedone, &FChanges::stepTakenBack}) {
        connect(changes, signal, this, checkSoon);
    }
    connect(changes, &FChanges::projectOpened, this, checkSoon);
    connect(changes, &FChanges::projectClosed, this, checkSoon);
    connect(changes, &FChanges::objectLeft, this, checkSoon);
    // A run brings what others link to.
    connect(changes, &FChanges::objectChanged, this, [checkSoon](FManaged* object) {
        if (dynamic_cast<FExternComputation*>(object)) {
            checkSoon();
        }
    });
    mTimer.start();
}

// Nothing is read for it: values that come from files of other runs are left to the check before a run.
void FProblemWatch::check() {
    mProblems.clear();
    QSet<QString> known;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        for (const FSetUpProblem& problem :
             FSetUpCheck::problemsOf(dynamic_cast<const FExternComputation&>(*object), false)) {
            if (!known.contains(problem.key())) {
                known.insert(problem.key());
                mProblems.append(problem);
            }
        }
    }
    std::stable_sort(mProblems.begin(), mProblems.end(),
                     [](const FSetUpProblem& a, const FSetUpProblem& b) { return a.severity > b.severity; });
    emit checked();
}

FSetUpCheck::Problems FProblemWatch::problemsOf(const QString& object) const {
    FSetUpCheck::Problems own;
    std::copy_if(mProblems.begin(), mProblems.end(), std::back_inserter(own), [&](const FSetUpProblem& problem) {
        return problem.object == object || problem.place.startsWith(object + QLatin1Char(':'));
    });
    return own;
}
