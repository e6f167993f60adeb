#pragma once

#include "host/core/FExport.h"

#include <unordered_set>
#include <vector>

class FObject;

/** The walks over the update graph. None of them recurses over links, so that no chain is too long. */
class FUpdateGraph {
 public:
    /** Marks the object and all that depend on it, once each; objects with immediate update are updated afterwards. */
    static void markOutOfDate(FObject* start);
    /** Updates what the object depends on and is out of date, suppliers before clients; then the object itself. */
    static bool update(FObject* object);
    /**
     * Removes from the queue of deferred updates all objects whose update would read files. They stay out of date and
     * update on demand.
     */
    static void forgetWaitingThatReadFiles();
    static bool reaches(const FObject* from, const FObject* supplier);

    static void link(FObject* client, FObject* supplier);
    static void unlink(FObject* client, FObject* supplier);
    /** Takes an object that dies out of the graph. */
    static void forget(FObject* object);

    static std::vector<FObject*> clientsOf(const FObject* object);
    static std::vector<FObject*> suppliersOf(const FObject* object);
    /** What goes out of date with an object: its clients, and the whole that it is a part of. */
    static MERIX_EXPORT std::vector<FObject*> reachedBy(const FObject* object);
    /**
     * What `next` leads to from an object, step by step, and is of one of the types, each once. Objects that have left
     * the model are skipped, and so is what only they lead to.
     */
    static std::vector<FObject*> allOf(const FObject* start, const std::vector<const FObject*>& types,
                                       std::vector<FObject*> (*next)(const FObject* object));

 private:
    friend class FImmediateUpdateBlocker;

    static void updateWaiting();
    /** Those of the objects, and of all that evaluating them evaluates, that read files. */
    static std::unordered_set<const FObject*> thoseThatReadFiles(std::vector<const FObject*> all);
    static bool updateOne(FObject* object);
};
