#include "host/run/FComputationGraph.h"

#include "host/core/FObjectManager.h"
#include "host/core/FString.h"
#include "host/core/FUpdateGraph.h"
#include "host/design/FEntry.h"
#include "host/design/FInputFile.h"
#include "host/run/FExternComputation.h"
#include "host/script/FCmd.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <unordered_set>

namespace {

/** The name of the file that an entry takes from a supplier; empty for another value. Nothing is evaluated. */
QString fileOf(const FEntry& entry, const FExternComputation& supplier) {
    const auto* file = dynamic_cast<const FInputFile*>(entry.getValue().getStored());
    if (!file) {
        return {};
    }
    const auto* command = dynamic_cast<const FCmd*>(file->getFileName().getStored());
    const auto* argument = command && !command->getArguments().empty()
                               ? dynamic_cast<const FString*>(command->getArguments().back().getStored())
                               : nullptr;
    if (!argument) {
        return entry.getName();
    }
    const QString ofEntry = supplier.getResultFile(argument->getValue());
    return ofEntry.isEmpty() ? argument->getValue() : ofEntry;
}

}  // namespace

/** What a computation's marks reach before they come to other computations. */
struct FComputationGraph::Reached {
    Reached(const FExternComputation& start, const Readers& all) {
        std::vector<const FObject*> todo{&start};
        std::unordered_set<const FObject*> seen{&start};
        for (std::size_t i = 0; i < todo.size(); ++i) {
            for (FObject* object : FUpdateGraph::reachedBy(todo[i])) {
                if (!object->getBlock()->live() || !seen.insert(object).second) {
                    continue;
                }
                const auto [first, end] = all.equal_range(object);
                for (auto reader = first; reader != end; ++reader) {
                    readers.push_back(reader->second);
                    if (seen.insert(reader->second.computation).second) {
                        computations.push_back(reader->second.computation);
                    }
                }
                if (auto* computation = dynamic_cast<FExternComputation*>(object)) {
                    computations.push_back(computation);
                    continue;
                }
                if (const auto* entry = dynamic_cast<const FEntry*>(object)) {
                    entries.push_back(entry);
                }
                todo.push_back(object);
            }
        }
    }

    std::vector<FExternComputation*> computations;
    std::vector<const FEntry*> entries;
    std::vector<Reader> readers;
};

FComputationGraph::FComputationGraph() {
    for (FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        if (auto* computation = dynamic_cast<FExternComputation*>(object)) {
            mIndexes[computation] = static_cast<int>(mComputations.size());
            mComputations.push_back(computation);
            for (const FExternComputation::ReadingPart& part : computation->getReadingParts()) {
                mReaders.emplace(part.object, Reader{computation, part.name});
            }
        }
    }
    mSuppliers.resize(mComputations.size());
    mClients.resize(mComputations.size());
    for (int index = 0; index < static_cast<int>(mComputations.size()); ++index) {
        addLinksFrom(index);
    }
}

void FComputationGraph::addLinksFrom(int supplier) {
    const FExternComputation& start = *mComputations[static_cast<std::size_t>(supplier)];
    const Reached reached(start, mReaders);
    for (const FExternComputation* computation : reached.computations) {
        Link link{supplier, indexOf(computation), {}, {}};
        if (link.client < 0) {
            continue;
        }
        const std::vector<FObject*> used = computation->getSuppliers();
        for (const FEntry* entry : reached.entries) {
            if (std::find(used.begin(), used.end(), entry->getOwner()) == used.end()) {
                continue;
            }
            const QString file = fileOf(*entry, start);
            file.isEmpty() ? link.values.append(entry->getFullName()) : link.files.append(file);
        }
        for (const Reader& reader : reached.readers) {
            if (reader.computation == computation) {
                link.values.append(reader.part);
            }
        }
        mClients[static_cast<std::size_t>(supplier)].push_back(link.client);
        mSuppliers[static_cast<std::size_t>(link.client)].push_back(supplier);
        mLinks.push_back(link);
    }
}

int FComputationGraph::indexOf(const FExternComputation* computation) const {
    const auto found = mIndexes.find(computation);
    return found == mIndexes.end() ? -1 : found->second;
}

std::vector<int> FComputationGraph::reachedFrom(int index, const Neighbours& next) {
    std::vector<int> found;
    std::unordered_set<int> seen{index};
    std::vector<int> todo{index};
    while (!todo.empty()) {
        const int current = todo.back();
        todo.pop_back();
        for (const int neighbour : next[static_cast<std::size_t>(current)]) {
            if (seen.insert(neighbour).second) {
                found.push_back(neighbour);
                todo.push_back(neighbour);
            }
        }
    }
    return found;
}

std::vector<int> FComputationGraph::suppliersFirst(std::vector<int> indexes) const {
    std::vector<int> awaited(mComputations.size(), -1);
    for (const int index : indexes) {
        awaited[static_cast<std::size_t>(index)] = 0;
    }
    for (const Link& link : mLinks) {
        int& client = awaited[static_cast<std::size_t>(link.client)];
        client += client >= 0 && awaited[static_cast<std::size_t>(link.supplier)] >= 0;
    }
    std::priority_queue<int, std::vector<int>, std::greater<>> ready;
    for (const int index : indexes) {
        if (awaited[static_cast<std::size_t>(index)] == 0) {
            ready.push(index);
        }
    }
    std::vector<int> sorted;
    while (!ready.empty()) {
        const int index = ready.top();
        ready.pop();
        sorted.push_back(index);
        for (const int client : mClients[static_cast<std::size_t>(index)]) {
            int& count = awaited[static_cast<std::size_t>(client)];
            if (count > 0 && --count == 0) {
                ready.push(client);
            }
        }
    }
    return sorted;
}
