#pragma once

#include "host/core/FExport.h"

#include <QStringList>

#include <unordered_map>
#include <vector>

class FExternComputation;
class FObject;

/**
 * All computations of the model as it is now, in the order of their creation, and which of them use results of which
 * others directly. The time to make it grows with what lies between them. Valid until the model changes.
 */
class MERIX_EXPORT FComputationGraph {
 public:
    /** What a computation uses of another one. */
    struct Link {
        int supplier = 0;  //!< index of the computation
        int client = 0;
        QStringList files;   //!< names of the files that the client gets
        QStringList values;  //!< paths of its other entries, and what else it has, whose values follow the supplier

        bool operator==(const Link& other) const = default;
    };

    FComputationGraph();

    const std::vector<FExternComputation*>& computations() const { return mComputations; }
    const std::vector<Link>& links() const { return mLinks; }
    /** -1 if it isn't in the model. */
    int indexOf(const FExternComputation* computation) const;
    /** Those whose results the computation uses, at any distance. */
    std::vector<int> suppliersOf(int index) const { return reachedFrom(index, mSuppliers); }
    std::vector<int> clientsOf(int index) const { return reachedFrom(index, mClients); }
    /** Suppliers come before their clients, others in the order of their creation as far as possible. */
    std::vector<int> suppliersFirst(std::vector<int> indexes) const;

 private:
    using Neighbours = std::vector<std::vector<int>>;
    struct Reader {
        FExternComputation* computation;
        QString part;  //!< with which it reads its results
    };
    using Readers = std::unordered_multimap<const FObject*, Reader>;
    struct Reached;

    void addLinksFrom(int supplier);
    static std::vector<int> reachedFrom(int index, const Neighbours& next);

    std::vector<FExternComputation*> mComputations;
    Readers mReaders;  // by what they read their results with
    std::unordered_map<const FExternComputation*, int> mIndexes;
    std::vector<Link> mLinks;
    Neighbours mSuppliers;  // direct ones
    Neighbours mClients;
};
