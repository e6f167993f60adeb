#pragma once

#include <vector>

class FObject;

/** The links of one object in the update graph, each with the number of times it was made. */
class FUpdateLinks {
 public:
    struct Link {
        FObject* object;
        int count;
    };
    std::vector<Link> clients;
    std::vector<Link> suppliers;

    static void add(std::vector<Link>& links, FObject* object);
    /** Takes one link back, or all with `all`. */
    static void remove(std::vector<Link>& links, const FObject* object, bool all = false);
};
