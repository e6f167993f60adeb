#include "host/core/FUpdateGraph.h"

#include "host/core/FExprBase.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FObject.h"
#include "host/core/FUpdateLinks.h"

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace {

int blockers = 0;

// Objects with immediate update that became out of date and haven't been updated since.
std::deque<FObject*>& waiting() {
    static std::deque<FObject*> objects;
    return objects;
}

std::vector<FObject*> objectsOf(const FUpdateLinks* links, std::vector<FUpdateLinks::Link> FUpdateLinks::*side) {
    std::vector<FObject*> found;
    if (links) {
        for (const FUpdateLinks::Link& link : links->*side) {
            found.push_back(link.object);
        }
    }
    return found;
}

}  // namespace

FImmediateUpdateBlocker::FImmediateUpdateBlocker() {
    ++blockers;
}

FImmediateUpdateBlocker::~FImmediateUpdateBlocker() {
    if (--blockers == 0) {
        FUpdateGraph::updateWaiting();
    }
}

bool FImmediateUpdateBlocker::isBlocked() {
    return blockers > 0;
}

int FImmediateUpdateBlocker::suspend() {
    const int count = std::exchange(blockers, 0);
    FUpdateGraph::updateWaiting();
    return count;
}

void FImmediateUpdateBlocker::resume(int count) {
    blockers += count;
}

void FUpdateGraph::markOutOfDate(FObject* start) {
    if (start->mUpdating) {
        return;
    }
    // Most objects are new values and commands, which nothing depends on yet.
    if (!start->mpLinks && !start->mImmediateUpdate && !start->getWhole()) {
        start->mOutOfDate = true;
        start->becameOutOfDate();
        return;
    }
    std::vector<FObject*> todo{start};
    std::unordered_set<FObject*> seen{start};
    for (std::size_t i = 0; i < todo.size(); ++i) {
        FObject* object = todo[i];
        object->mOutOfDate = true;
        object->becameOutOfDate();
        if (object->mImmediateUpdate) {
            waiting().push_back(object);
        }
        for (FObject* next : reachedBy(object)) {
            if (!next->mUpdating && seen.insert(next).second) {
                todo.push_back(next);
            }
        }
    }
    if (!FImmediateUpdateBlocker::isBlocked()) {
        updateWaiting();
    }
}

void FUpdateGraph::updateWaiting() {
    static bool isAtWork = false;
    if (isAtWork) {
        return;
    }
    // An update may mark further objects: they join the queue and are reached by the same loop.
    isAtWork = true;
    while (!waiting().empty()) {
        FObject* object = waiting().front();
        waiting().pop_front();
        object->update();
    }
    isAtWork = false;
}

void FUpdateGraph::forgetWaitingThatReadFiles() {
    const auto reading = thoseThatReadFiles({waiting().begin(), waiting().end()});
    const auto isReading = [&reading](const FObject* object) { return reading.count(object) > 0; };
    waiting().erase(std::remove_if(waiting().begin(), waiting().end(), isReading), waiting().end());
}

// All that would be evaluated is looked at once, however much of it the objects share.
std::unordered_set<const FObject*> FUpdateGraph::thoseThatReadFiles(std::vector<const FObject*> all) {
    std::unordered_set<const FObject*> seen(all.begin(), all.end());
    std::unordered_map<const FObject*, std::vector<const FObject*>> evaluatedBy;
    std::vector<const FObject*> reading;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const FObject* object = all[i];
        if (!object->isSafeAlone(false)) {
            reading.push_back(object);
        }
        for (const FExprBase& operand : object->getOperands()) {
            const FObject* stored = operand.getStored();
            if (stored && seen.insert(stored).second) {
                all.push_back(stored);
            }
            evaluatedBy[stored].push_back(object);
        }
    }
    std::unordered_set<const FObject*> found(reading.begin(), reading.end());
    for (std::size_t i = 0; i < reading.size(); ++i) {
        for (const FObject* object : evaluatedBy[reading[i]]) {
            if (found.insert(object).second) {
                reading.push_back(object);
            }
        }
    }
    return found;
}

bool FUpdateGraph::updateOne(FObject* object) {
    object->mUpdating = true;
    object->mOutOfDate = false;
    const bool done = object->doUpdate();
    object->mOutOfDate = false;
    object->mUpdating = false;
    return done;
}

bool FUpdateGraph::update(FObject* object) {
    struct Step {
        FObject* object;
        bool suppliersDone;
    };
    std::vector<Step> stack{{object, false}};
    bool done = true;
    while (!stack.empty()) {
        const Step step = stack.back();
        if (!step.object->mOutOfDate || step.object->mUpdating) {
            stack.pop_back();
        } else if (step.suppliersDone || step.object->updatesSuppliersItself()) {
            stack.pop_back();
            done = updateOne(step.object);
        } else {
            stack.back().suppliersDone = true;
            const std::vector<FObject*> suppliers = suppliersOf(step.object);
            for (auto supplier = suppliers.rbegin(); supplier != suppliers.rend(); ++supplier) {
                stack.push_back({*supplier, false});
            }
        }
    }
    return done;
}

// The way that marks take, so that what a mark would come back to counts as a cycle.
bool FUpdateGraph::reaches(const FObject* from, const FObject* supplier) {
    std::vector<const FObject*> todo{supplier};
    std::unordered_set<const FObject*> seen{supplier};
    for (std::size_t i = 0; i < todo.size(); ++i) {
        if (todo[i] == from) {
            return true;
        }
        for (const FObject* next : reachedBy(todo[i])) {
            if (seen.insert(next).second) {
                todo.push_back(next);
            }
        }
    }
    return false;
}

std::vector<FObject*> FUpdateGraph::reachedBy(const FObject* object) {
    std::vector<FObject*> reached = clientsOf(object);
    if (FObject* whole = object->getWhole()) {
        reached.push_back(whole);
    }
    return reached;
}

std::vector<FObject*> FUpdateGraph::allOf(const FObject* start, const std::vector<const FObject*>& types,
                                          std::vector<FObject*> (*next)(const FObject* object)) {
    std::vector<const FObject*> todo{start};
    std::unordered_set<const FObject*> seen{start};
    std::vector<FObject*> found;
    for (std::size_t i = 0; i < todo.size(); ++i) {
        for (FObject* object : next(todo[i])) {
            if (!object->getBlock()->live() || !seen.insert(object).second) {
                continue;
            }
            todo.push_back(object);
            if (std::any_of(types.begin(), types.end(), [&](const FObject* type) { return object->isTypeOf(type); })) {
                found.push_back(object);
            }
        }
    }
    return found;
}

void FUpdateGraph::link(FObject* client, FObject* supplier) {
    for (FObject* object : {client, supplier}) {
        if (!object->mpLinks) {
            object->mpLinks = new FUpdateLinks;
        }
    }
    FUpdateLinks::add(client->mpLinks->suppliers, supplier);
    FUpdateLinks::add(supplier->mpLinks->clients, client);
}

void FUpdateGraph::unlink(FObject* client, FObject* supplier) {
    if (client->mpLinks && supplier->mpLinks) {
        FUpdateLinks::remove(client->mpLinks->suppliers, supplier);
        FUpdateLinks::remove(supplier->mpLinks->clients, client);
    }
}

void FUpdateGraph::forget(FObject* object) {
    if (object->mImmediateUpdate) {
        waiting().erase(std::remove(waiting().begin(), waiting().end(), object), waiting().end());
    }
    if (!object->mpLinks) {
        return;
    }
    for (const FUpdateLinks::Link& link : object->mpLinks->suppliers) {
        FUpdateLinks::remove(link.object->mpLinks->clients, object, true);
    }
    for (const FUpdateLinks::Link& link : object->mpLinks->clients) {
        FUpdateLinks::remove(link.object->mpLinks->suppliers, object, true);
    }
    delete object->mpLinks;
    object->mpLinks = nullptr;
}

std::vector<FObject*> FUpdateGraph::clientsOf(const FObject* object) {
    return objectsOf(object->mpLinks, &FUpdateLinks::clients);
}

std::vector<FObject*> FUpdateGraph::suppliersOf(const FObject* object) {
    return objectsOf(object->mpLinks, &FUpdateLinks::suppliers);
}
