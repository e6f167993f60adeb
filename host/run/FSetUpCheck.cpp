#include "host/run/FSetUpCheck.h"

#include <utility>
#include <vector>

namespace {

std::vector<const FSetUpCheck*>& checks() {
    static std::vector<const FSetUpCheck*> all;
    return all;
}

FSetUpCheck::Substitute& substitute() {
    static FSetUpCheck::Substitute current;
    return current;
}

}  // namespace

void FSetUpCheck::add(const FSetUpCheck* check) {
    checks().push_back(check);
}

FSetUpCheck::Problems FSetUpCheck::problemsOf(const FExternComputation& computation, bool mayReadFiles) {
    Problems all;
    for (const FSetUpCheck* check : checks()) {
        all += check->problems(computation, mayReadFiles);
    }
    return all;
}

FSetUpCheck::Inputs FSetUpCheck::inputsOf(const FExternComputation& computation) {
    Inputs all;
    for (const FSetUpCheck* check : checks()) {
        all += check->inputs(computation);
    }
    return all;
}

FSetUpCheck::Tables FSetUpCheck::tablesOf(const FExternComputation& computation) {
    Tables all;
    for (const FSetUpCheck* check : checks()) {
        all += check->tables(computation);
    }
    return all;
}

FSetUpCheck::Uses FSetUpCheck::usesOf(const FDefinition& definition) {
    Uses all;
    for (const FSetUpCheck* check : checks()) {
        const Uses own = check->uses(definition);
        for (auto use = own.begin(); use != own.end(); ++use) {
            all[use.key()] += *use;
        }
    }
    return all;
}

bool FSetUpCheck::isReplacingRuns() {
    return static_cast<bool>(substitute());
}

void FSetUpCheck::setSubstituteForRuns(Substitute fresh) {
    substitute() = std::move(fresh);
}

bool FSetUpCheck::substituteRun(const FExternComputation& computation) {
    const Substitute current = substitute();
    if (current) {
        current(computation);
    }
    return static_cast<bool>(current);
}
