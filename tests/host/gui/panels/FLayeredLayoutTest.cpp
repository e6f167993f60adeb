#include "host/gui/panels/FLayeredLayout.h"

#include <gtest/gtest.h>

#include <QString>

#include <algorithm>
#include <random>
#include <set>

namespace {

using Link = FLayeredLayout::Link;

/** Rows and columns as "column/row" in the order of the boxes. */
std::string placesOf(const FLayeredLayout& layout) {
    std::string text;
    for (const FLayeredLayout::Place& place : layout.places()) {
        text += QString("%1/%2 ").arg(place.column).arg(place.row).toStdString();
    }
    return text;
}

TEST(FLayeredLayoutTest, chainsRunFromLeftToRight) {
    EXPECT_EQ(placesOf(FLayeredLayout(4, {{0, 1}, {0, 2}, {1, 3}, {2, 3}})), "0/0.5 1/0 1/1 2/0.5 ") << "a diamond";
    EXPECT_EQ(placesOf(FLayeredLayout(3, {{2, 1}, {1, 0}})), "2/0 1/0 0/0 ") << "whatever was made first";
    EXPECT_EQ(placesOf(FLayeredLayout(4, {{0, 1}, {2, 3}})), "0/0 1/0 0/1 1/1 ") << "two of them are below each other";
    EXPECT_EQ(placesOf(FLayeredLayout(4, {{1, 2}})), "0/1 0/0 1/0 1/1 ") << "boxes without links come last";
    // The order of creation would have the links cross.
    const FLayeredLayout crossing(6, {{0, 5}, {1, 4}, {2, 3}, {0, 4}});
    EXPECT_EQ(crossing.countCrossings(), 0) << placesOf(crossing);

    // Links that pass a column do it above all boxes, side by side only where they overlap.
    const FLayeredLayout passing(5, {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {0, 2}, {2, 4}, {0, 4}});
    const double low = passing.links()[4].lane;
    EXPECT_EQ(passing.links()[5].lane, low);
    EXPECT_NE(passing.links()[6].lane, low);
    EXPECT_LT(passing.links()[0].lane, 0);
    for (const FLayeredLayout::Place& place : passing.places()) {
        EXPECT_GE(place.row - std::max(low, passing.links()[6].lane), FLayeredLayout::laneHeight - 1e-9);
    }
}

TEST(FLayeredLayoutTest, noTwoBoxesAndNoTwoLanesMeet) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        const int boxes = std::uniform_int_distribution(1, 30)(random);
        std::vector<int> order(static_cast<std::size_t>(boxes));
        std::iota(order.begin(), order.end(), 0);
        std::shuffle(order.begin(), order.end(), random);
        std::uniform_int_distribution<std::size_t> any(0, order.size() - 1);
        std::set<std::pair<int, int>> pairs;
        for (int i = std::uniform_int_distribution(0, 40)(random); i > 0; --i) {
            const std::size_t a = any(random);
            const std::size_t b = any(random);
            if (a != b) {
                pairs.insert({order[std::min(a, b)], order[std::max(a, b)]});
            }
        }
        std::vector<Link> links;
        links.reserve(pairs.size());
        for (const auto& [from, to] : pairs) {
            links.push_back({from, to});
        }
        const FLayeredLayout layout(boxes, links);
        const auto placeOf = [&](int box) { return layout.places()[static_cast<std::size_t>(box)]; };
        std::set<std::pair<int, double>> taken;
        for (int box = 0; box < boxes; ++box) {
            EXPECT_TRUE(taken.insert({placeOf(box).column, placeOf(box).row}).second);
            int before = -1;
            bool isLinked = false;
            for (const Link& link : links) {
                before = link.to == box ? std::max(before, placeOf(link.from).column) : before;
                isLinked = isLinked || link.to == box || link.from == box;
            }
            EXPECT_TRUE(!isLinked || placeOf(box).column == before + 1);
        }
        for (const Link& a : layout.links()) {
            EXPECT_EQ(a.lane >= 0, placeOf(a.to).column > placeOf(a.from).column + 1);
            for (const Link& b : layout.links()) {
                const bool overlap = &a != &b && placeOf(a.from).column < placeOf(b.to).column &&
                                     placeOf(b.from).column < placeOf(a.to).column;
                EXPECT_FALSE(a.lane >= 0 && a.lane == b.lane && overlap);
            }
            for (int box = 0; a.lane >= 0 && box < boxes; ++box) {
                EXPECT_GE(std::abs(placeOf(box).row - a.lane), FLayeredLayout::laneHeight - 1e-9);
            }
        }
        ASSERT_FALSE(HasFailure()) << round;
    }
}

TEST(FLayeredLayoutTest, aChainMayBeVeryLong) {
    constexpr int boxes = 20'000;
    std::vector<Link> links;
    for (int box = 1; box < boxes; ++box) {
        links.push_back({box - 1, box});
        links.push_back({box / 2, box});
    }
    const FLayeredLayout layout(boxes, links);
    for (int box = 0; box < boxes; ++box) {
        ASSERT_EQ(layout.places()[static_cast<std::size_t>(box)].column, box);
    }
}

}  // namespace
