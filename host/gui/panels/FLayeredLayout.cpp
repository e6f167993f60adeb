#include "host/gui/panels/FLayeredLayout.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <queue>

FLayeredLayout::FLayeredLayout(int boxes, std::vector<Link> links)
    : mLinks(std::move(links)),
      mPlaces(static_cast<std::size_t>(boxes)),
      mBefore(mPlaces.size()),
      mAfter(mPlaces.size()),
      mLinksOf(mPlaces.size()) {
    for (std::size_t index = 0; index < mLinks.size(); ++index) {
        Link& link = mLinks[index];
        link.lane = -1;
        mAfter[static_cast<std::size_t>(link.from)].push_back(link.to);
        mBefore[static_cast<std::size_t>(link.to)].push_back(link.from);
        mLinksOf[static_cast<std::size_t>(link.from)].push_back(static_cast<int>(index));
    }
    findColumns();
    double top = 0;
    std::vector<int> single;
    for (const std::vector<int>& part : findParts()) {
        if (part.size() == 1) {
            single.push_back(part.front());
        } else {
            top = place(part, top);
        }
    }
    placeSingle(single, top);
}

void FLayeredLayout::findColumns() {
    std::vector<std::size_t> awaited;
    std::vector<int> ready;
    for (const std::vector<int>& before : mBefore) {
        if (before.empty()) {
            ready.push_back(static_cast<int>(awaited.size()));
        }
        awaited.push_back(before.size());
    }
    for (std::size_t i = 0; i < ready.size(); ++i) {
        const int box = ready[i];
        for (const int next : mAfter[static_cast<std::size_t>(box)]) {
            columnOf(next) = std::max(columnOf(next), columnOf(box) + 1);
            if (--awaited[static_cast<std::size_t>(next)] == 0) {
                ready.push_back(next);
            }
        }
    }
}

/** The boxes that links connect, in the order of the first box of each part. */
std::vector<std::vector<int>> FLayeredLayout::findParts() const {
    std::vector<std::vector<int>> parts;
    std::vector<bool> isKnown(mPlaces.size());
    for (std::size_t start = 0; start < mPlaces.size(); ++start) {
        if (isKnown[start]) {
            continue;
        }
        isKnown[start] = true;
        std::vector<int> part{static_cast<int>(start)};
        for (std::size_t i = 0; i < part.size(); ++i) {
            for (const Neighbours* neighbours : {&mBefore, &mAfter}) {
                for (const int next : (*neighbours)[static_cast<std::size_t>(part[i])]) {
                    if (!isKnown[static_cast<std::size_t>(next)]) {
                        isKnown[static_cast<std::size_t>(next)] = true;
                        part.push_back(next);
                    }
                }
            }
        }
        std::sort(part.begin(), part.end());
        parts.push_back(std::move(part));
    }
    return parts;
}

double FLayeredLayout::place(const std::vector<int>& part, double top) {
    std::vector<std::vector<int>> columns;
    for (const int box : part) {
        const auto column = static_cast<std::size_t>(columnOf(box));
        columns.resize(std::max(columns.size(), column + 1));
        columns[column].push_back(box);
    }
    std::size_t highest = 0;
    for (const std::vector<int>& column : columns) {
        centre(column);
        highest = std::max(highest, column.size());
    }
    reduceCrossings(columns);
    const double lanes = laneHeight * findLanes(part);
    const double middle = top + lanes + static_cast<double>(highest - 1) / 2;
    for (const int box : part) {
        rowOf(box) += middle;
        for (const int index : mLinksOf[static_cast<std::size_t>(box)]) {
            double& lane = mLinks[static_cast<std::size_t>(index)].lane;
            lane = lane < 0 ? lane : top + lanes - laneHeight * (lane + 1);
        }
    }
    return top + lanes + static_cast<double>(highest);
}

void FLayeredLayout::centre(const std::vector<int>& column) {
    double row = -static_cast<double>(column.size() - 1) / 2;
    for (const int box : column) {
        rowOf(box) = row++;
    }
}

void FLayeredLayout::reduceCrossings(std::vector<std::vector<int>>& columns) {
    constexpr int sweeps = 4;
    for (int sweep = 0; sweep < sweeps; ++sweep) {
        for (auto column = columns.begin(); column != columns.end(); ++column) {
            sortByNeighbours(*column, mBefore);
        }
        for (auto column = columns.rbegin(); column != columns.rend(); ++column) {
            sortByNeighbours(*column, mAfter);
        }
    }
    for (std::vector<int>& column : columns) {
        sortByNeighbours(column, mBefore);
    }
}

/** Each box goes to the mean of its neighbours' rows; one without neighbours keeps its row. */
void FLayeredLayout::sortByNeighbours(std::vector<int>& column, const Neighbours& neighbours) {
    std::vector<std::pair<double, int>> wanted;
    for (const int box : column) {
        const std::vector<int>& near = neighbours[static_cast<std::size_t>(box)];
        const double sum = std::accumulate(near.begin(), near.end(), 0.0,
                                           [this](double rows, int neighbour) { return rows + rowOf(neighbour); });
        wanted.emplace_back(near.empty() ? rowOf(box) : sum / static_cast<double>(near.size()), box);
    }
    std::stable_sort(wanted.begin(), wanted.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(wanted.begin(), wanted.end(), column.begin(), [](const auto& each) { return each.second; });
    centre(column);
}

// A lane is free again after the column where its last link ends. Shorter links get the lower lanes.
int FLayeredLayout::findLanes(const std::vector<int>& part) {
    struct Lane {
        int end;
        int number;
        bool operator>(const Lane& other) const { return end > other.end; }
    };
    std::vector<Link*> longLinks;
    for (const int box : part) {
        for (const int index : mLinksOf[static_cast<std::size_t>(box)]) {
            Link& link = mLinks[static_cast<std::size_t>(index)];
            if (columnOf(link.to) > columnOf(link.from) + 1) {
                longLinks.push_back(&link);
            }
        }
    }
    std::stable_sort(longLinks.begin(), longLinks.end(), [this](const Link* a, const Link* b) {
        return std::pair(columnOf(a->from), columnOf(a->to)) < std::pair(columnOf(b->from), columnOf(b->to));
    });
    std::priority_queue<Lane, std::vector<Lane>, std::greater<>> lanes;
    for (Link* link : longLinks) {
        Lane lane{0, static_cast<int>(lanes.size())};
        if (!lanes.empty() && lanes.top().end <= columnOf(link->from)) {
            lane = lanes.top();
            lanes.pop();
        }
        lane.end = columnOf(link->to);
        link->lane = lane.number;
        lanes.push(lane);
    }
    return static_cast<int>(lanes.size());
}

/** In a block that is about as wide as high. */
void FLayeredLayout::placeSingle(const std::vector<int>& boxes, double top) {
    constexpr int fewest = 4;
    int columns = fewest;
    while (columns * columns < static_cast<int>(boxes.size())) {
        ++columns;
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const int row = static_cast<int>(i) / columns;
        columnOf(boxes[i]) = static_cast<int>(i) - row * columns;
        rowOf(boxes[i]) = top + row;
    }
}

int FLayeredLayout::countCrossings() const {
    int crossings = 0;
    for (std::size_t i = 0; i < mLinks.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const Place& a = mPlaces[static_cast<std::size_t>(mLinks[i].from)];
            const Place& b = mPlaces[static_cast<std::size_t>(mLinks[j].from)];
            const bool areSideBySide = mLinks[i].lane < 0 && mLinks[j].lane < 0 && a.column == b.column;
            const double end = mPlaces[static_cast<std::size_t>(mLinks[i].to)].row -
                               mPlaces[static_cast<std::size_t>(mLinks[j].to)].row;
            crossings += areSideBySide && (a.row - b.row) * end < 0;
        }
    }
    return crossings;
}
