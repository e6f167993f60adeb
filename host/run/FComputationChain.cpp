#include "host/run/FComputationChain.h"

#include "host/core/FObjectManager.h"
#include "host/run/FExternComputation.h"

#include <algorithm>
#include <utility>

namespace {

using Computations = FComputationChain::Computations;

template <class Condition>
Computations allWith(const Condition& condition) {
    Computations found;
    for (FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        auto* computation = dynamic_cast<FExternComputation*>(object);
        if (computation && condition(*computation)) {
            found.append(computation);
        }
    }
    return found;
}

/** A computation has more suppliers than each of them has. */
Computations suppliersFirst(const Computations& chain) {
    std::vector<std::pair<std::ptrdiff_t, FExternComputation*>> ranked;
    for (FExternComputation* computation : chain) {
        const auto suppliers = std::count_if(chain.begin(), chain.end(), [computation](const auto* other) {
            return other != computation && computation->dependsOn(other);
        });
        ranked.emplace_back(suppliers, computation);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    Computations sorted;
    for (const auto& [suppliers, computation] : ranked) {
        sorted.append(computation);
    }
    return sorted;
}

}  // namespace

Computations FComputationChain::suppliersOf(const FExternComputation& computation) {
    return suppliersFirst(
        allWith([&](const auto& other) { return &other != &computation && computation.dependsOn(&other); }));
}

Computations FComputationChain::of(const FExternComputation& computation) {
    return suppliersFirst(allWith([&](const auto& other) {
        return &other == &computation || computation.dependsOn(&other) || other.dependsOn(&computation);
    }));
}
