#pragma once

#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/marking/FLineRange.h"
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
    // In the order of painting.
    std::vector<FTextRange> lines{};  //!< that hold the value; of an average, its rows in view, from the last upwards
    std::vector<FTextRange> columns{};
    std::optional<FTextRange> anchor{};

    std::vector<FTextRange> readerPlaces{};  //!< where the reader finds the value, if that isn't one of the columns
    FTextRange place{};                      //!< to bring into view: a column, of an average that of its last row
    int cursor = 0;                          //!< where the cursor stays

    bool operator==(const FResultMarks&) const = default;

    /**
     * @param found  the value as the reader found it in the sample. Of very many rows it knows only the first ones, and
     *               there are no places of the reader for the others.
     * @param view  the lines of the document that are in view
     */
    static FResultMarks of(const FResultSample& sample, const FValueDescription& value,
                           const FSeparatorSettings& separators, const FFoundValue& found, FLineRange view = {});
    /** Marks the rows of an average in another view. */
    void showRows(const FResultSample& sample, const FValueDescription& value, const FSeparatorSettings& separators,
                  FLineRange view);
};
