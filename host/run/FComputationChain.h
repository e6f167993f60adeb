#pragma once

#include "host/core/FExport.h"

#include <QList>

class FExternComputation;

/** Computations that are linked: the input of one depends on results of another. */
class MERIX_EXPORT FComputationChain {
 public:
    using Computations = QList<FExternComputation*>;

    /** Those whose results the computation uses, at any distance. Suppliers come before their clients. */
    static Computations suppliersOf(const FExternComputation& computation);
    /** Those that use its results, at any distance. */
    static Computations clientsOf(const FExternComputation& computation);
    /**
     * The computation with all that it uses, and all that use it, at any distance; not those that only share a supplier
     * with it. Suppliers come before their clients, unrelated ones in the order of their creation as far as possible.
     */
    static Computations of(const FExternComputation& computation);
};
