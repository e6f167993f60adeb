#include "host/script/FListLimits.h"

#include "host/core/FObjectList.h"

#include <vector>

namespace {

constexpr int deepestList = 200;
constexpr std::size_t mostElements = 1'000'000;

struct Nested {
    const FObjectList* list;
    int depth;
};

}  // namespace

QString listFault(const FObjectList& list) {
    std::vector<Nested> todo{{&list, 1}};
    std::size_t elements = 0;
    while (!todo.empty()) {
        const Nested next = todo.back();
        todo.pop_back();
        elements += next.list->getObjects().size();
        if (next.depth > deepestList) {
            return QStringLiteral("the list would hold lists more than %1 levels deep").arg(deepestList);
        }
        // A list that appears in several places counts in each, as it does in the text.
        if (elements > mostElements) {
            return QStringLiteral("the list would have more than %1 elements, with those of the lists in it")
                .arg(mostElements);
        }
        for (const FExpr<FObject>& element : next.list->getObjects()) {
            if (const auto* inner = dynamic_cast<const FObjectList*>(element.getStored())) {
                todo.push_back({inner, next.depth + 1});
            }
        }
    }
    return {};
}
