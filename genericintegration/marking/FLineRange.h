#pragma once

#include <limits>

/** Lines of a text, numbered from 0, with the last one. */
struct FLineRange {
    int first = 0;
    int last = std::numeric_limits<int>::max();

    bool operator==(const FLineRange&) const = default;
};
