#include "genericintegration/io/FShortWordGroup.h"

#include <algorithm>
#include <utility>

namespace {

using Groups = std::vector<FShortWordGroup>;

/** Cost of joining a group with the next one: the number of quads that belong to neither. */
double costOfJoining(const Groups& groups, size_t first) {
    const FShortWordGroup& left = groups[first];
    const FShortWordGroup& right = groups[first + 1];
    FQuadSet both = left.quads;
    both |= right.quads;
    return (both.size() - left.quads.size() - right.quads.size()) * std::max(left.weight, right.weight);
}

void joinNext(Groups& groups, size_t first) {
    FShortWordGroup& group = groups[first];
    const FShortWordGroup& next = groups[first + 1];
    group.words.insert(group.words.end(), next.words.begin(), next.words.end());
    group.quads |= next.quads;
    group.weight = std::max(group.weight, next.weight);
    groups.erase(groups.begin() + static_cast<std::ptrdiff_t>(first) + 1);
}

}  // namespace

// Sorting makes words with similar starts adjacent; only adjacent groups are joined.
Groups FShortWordGroup::make(std::vector<FShortWord> words, size_t maxGroups) {
    std::sort(words.begin(), words.end(),
              [](const FShortWord& left, const FShortWord& right) { return left.rank() < right.rank(); });
    Groups groups;
    groups.reserve(words.size());
    for (const FShortWord& word : words) {
        groups.emplace_back(word);
    }
    std::vector<double> costs;
    for (size_t i = 0; i + 1 < groups.size(); ++i) {
        costs.push_back(costOfJoining(groups, i));
    }
    while (groups.size() > maxGroups) {
        const auto least = std::min_element(costs.begin(), costs.end());
        const size_t first = static_cast<size_t>(least - costs.begin());
        joinNext(groups, first);
        costs.erase(least);
        if (first > 0) {
            costs[first - 1] = costOfJoining(groups, first - 1);
        }
        if (first < costs.size()) {
            costs[first] = costOfJoining(groups, first);
        }
    }
    return groups;
}

void FShortWordGroup::remove(size_t index) {
    std::swap(words[index], words.back());
    words.pop_back();
    quads = {};
    for (const FShortWord& word : words) {
        quads |= FQuadSet(word);
    }
}
