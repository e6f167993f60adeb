#include "host/run/FComputationChain.h"

#include "host/run/FComputationGraph.h"

namespace {

using Computations = FComputationChain::Computations;

Computations listOf(const FComputationGraph& graph, const std::vector<int>& indexes) {
    Computations list;
    for (const int index : graph.suppliersFirst(indexes)) {
        list.append(graph.computations()[static_cast<std::size_t>(index)]);
    }
    return list;
}

}  // namespace

Computations FComputationChain::suppliersOf(const FExternComputation& computation) {
    const FComputationGraph graph;
    const int index = graph.indexOf(&computation);
    return index < 0 ? Computations() : listOf(graph, graph.suppliersOf(index));
}

Computations FComputationChain::clientsOf(const FExternComputation& computation) {
    const FComputationGraph graph;
    const int index = graph.indexOf(&computation);
    return index < 0 ? Computations() : listOf(graph, graph.clientsOf(index));
}

Computations FComputationChain::of(const FExternComputation& computation) {
    const FComputationGraph graph;
    const int index = graph.indexOf(&computation);
    if (index < 0) {
        return {};
    }
    std::vector<int> chain = graph.suppliersOf(index);
    const std::vector<int> clients = graph.clientsOf(index);
    chain.insert(chain.end(), clients.begin(), clients.end());
    chain.push_back(index);
    return listOf(graph, chain);
}
