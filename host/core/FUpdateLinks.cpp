#include "host/core/FUpdateLinks.h"

#include <algorithm>

namespace {

// From the end: what was linked last goes first in most cases.
auto find(std::vector<FUpdateLinks::Link>& links, const FObject* object) {
    const auto found = std::find_if(links.rbegin(), links.rend(),
                                    [object](const FUpdateLinks::Link& link) { return link.object == object; });
    return found == links.rend() ? links.end() : std::prev(found.base());
}

}  // namespace

void FUpdateLinks::add(std::vector<Link>& links, FObject* object) {
    const auto found = find(links, object);
    if (found == links.end()) {
        links.push_back({object, 1});
    } else {
        ++found->count;
    }
}

void FUpdateLinks::remove(std::vector<Link>& links, const FObject* object, bool all) {
    const auto found = find(links, object);
    if (found != links.end() && (all || --found->count == 0)) {
        links.erase(found);
    }
}
