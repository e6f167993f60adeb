#pragma once

#include "host/core/FExport.h"

#include <vector>

/**
 * Places boxes in columns from left to right, so that each box is to the right of all that lead to it. Boxes that
 * nothing connects are below each other. A link to the next column is a line of its own; a longer one passes above the
 * boxes in a lane. Time grows with the number of boxes and links, times its logarithm.
 */
class MERIX_EXPORT FLayeredLayout {
 public:
    struct Link {
        int from = 0;
        int to = 0;
        double lane = -1;  //!< row of its lane; below 0 for a link to the next column
    };
    struct Place {
        int column = 0;
        double row = 0;
    };

    /** Height of a lane; that of a box with the room below it is 1. */
    static constexpr double laneHeight = 0.3;

    /** @param links  without circles; the indexes are those of boxes, and the lanes don't matter */
    FLayeredLayout(int boxes, std::vector<Link> links);

    const std::vector<Place>& places() const { return mPlaces; }
    /** In the order in which they were given. */
    const std::vector<Link>& links() const { return mLinks; }
    /** How often links between neighbouring columns cross. For tests: takes time with the square of their number. */
    int countCrossings() const;

 private:
    using Neighbours = std::vector<std::vector<int>>;

    int& columnOf(int box) { return mPlaces[static_cast<std::size_t>(box)].column; }
    double& rowOf(int box) { return mPlaces[static_cast<std::size_t>(box)].row; }
    void findColumns();
    std::vector<std::vector<int>> findParts() const;
    /** Places a part below a row; returns the row below it. */
    double place(const std::vector<int>& part, double top);
    void reduceCrossings(std::vector<std::vector<int>>& columns);
    void sortByNeighbours(std::vector<int>& column, const Neighbours& neighbours);
    /** Puts the rows of a column around 0. */
    void centre(const std::vector<int>& column);
    /** Gives each long link of the part a lane, from 0; returns the number of lanes. */
    int findLanes(const std::vector<int>& part);
    void placeSingle(const std::vector<int>& boxes, double top);

    std::vector<Link> mLinks;
    std::vector<Place> mPlaces;
    Neighbours mBefore;  // boxes that lead to a box
    Neighbours mAfter;
    Neighbours mLinksOf;  // indexes of the links that leave a box
};
