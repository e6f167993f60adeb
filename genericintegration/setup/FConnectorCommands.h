#pragma once

#include "genericintegration/setup/FConnectorSetUp.h"
#include "host/script/FCmdTable.h"

/**
 * The script commands of software connectors, the same for each class C of connectors. C has `create(name,
 * computation)`, `setUp()`, which returns its FConnectorSetUp, and `chooseResultsFile()`.
 */
template <class C>
void connectorCommands(FCmdTable& table) {
    table
        .creator(
            "softwareConnector", +[](const FNewName& name) { return C::create(name.name, {}); })
        .selectOnExec(false);
    table.attribute<C>("setComputation", &C::setComputation, &C::getComputation, {"computation"}).hidden().data();
    table
        .plain<C>("setItemSize", [](C& connector) -> SoftConItemSize& { return connector.setUp().mItemSize; }, {"size"})
        .hidden()
        .systemFlag(2);
    table
        .plain<C>("setResultsPath", [](C& connector) -> QString& { return connector.setUp().mResultsPath; },
                  {"resultsPath"})
        .hidden()
        .systemFlag(2);
    table.global("refreshAllSoftCons", &FConnectorInterface::refreshAll)
        .method("refreshAll")
        .onPrototype()
        .systemFlag(2);
    table.global("chooseResultsFile", &C::chooseResultsFile).method("chooseResultsFileCommand").systemFlag(2);
}

/** What the history keeps of a connector beside its plain attributes. */
template <class C>
std::vector<std::unique_ptr<FStateField>> connectorFields() {
    using Computation = FExpr<FExternComputation>;
    return FStateFields<C>()
        .template linked<Computation>([](C& connector) -> Computation& { return connector.setUp().mComputation; },
                                      [](C& connector) { connector.setUp().listen(); })
        .take();
}
