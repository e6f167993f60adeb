#pragma once

#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/marking/FTextRange.h"

#include <optional>
#include <vector>

class FResultSample;
struct FSeparatorSettings;
struct FValueDescription;

/**
 * What an editor of result templates marks in the document of its sample for one value. Anchors of a document are
 * within a line, and lines are counted as the cursor of an editor moves; where that isn't the place that the reader
 * reads, its place is among the results, too. None of the ranges is empty.
 */
struct FResultMarks {
    /** Of an average over more rows, only the last ones are marked, and no places of the reader are given. */
    static constexpr int mostRows = 5000;

    // In the order of painting.
    std::vector<FTextRange> lines{};  //!< that hold the value; of an average, its rows from the last one upwards
    std::vector<FTextRange> columns{};
    std::optional<FTextRange> anchor{};

    std::vector<FTextRange> readerPlaces{};  //!< where the reader finds the value, if that isn't one of the columns
    int cursor = 0;                          //!< the position to scroll to

    bool operator==(const FResultMarks&) const = default;

    /** @param found  the value as the reader found it in the sample */
    static FResultMarks of(const FResultSample& sample, const FValueDescription& value,
                           const FSeparatorSettings& separators, const FFoundValue& found);
};
