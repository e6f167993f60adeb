#pragma once

#include "genericintegration/io/FAnchorSearch.h"
#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/io/FSeparator.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FSoughtLine.h"
#include "genericintegration/io/FValueDescription.h"

#include <QString>

#include <map>
#include <memory>
#include <vector>

class FResultText;

/** Result of a search. */
struct FFoundValues {
    std::vector<FFoundValue> values;  //!< in the order of the descriptions
    std::vector<int> order;           //!< the order of the table, as indices of the descriptions
};

/**
 * Finds all values of a result template in the text of an output file.
 *
 * One pass over the text finds all anchors. After that, the line of a value is read once for all values in it, and so
 * is each row of averages. An object can be used for any number of texts.
 */
class FValueSearch {
 public:
    FValueSearch(std::vector<FValueDescription> values, const FSeparatorSettings& separators);

    /** Whether the values and separators are those given to the constructor. */
    bool isFor(const std::vector<FValueDescription>& values, const FSeparatorSettings& separators) const {
        return mSeparators == separators && mValues == values;
    }

    /** Why the regular expression of the separators is invalid; empty if valid. An invalid one matches nothing. */
    QString patternError() const { return mSeparator ? mSeparator->error() : QString(); }

    FFoundValues find(const FResultText& text) const;
    /** The same, with the places of the values' anchors in the trimmed text, for a text that is searched repeatedly. */
    FFoundValues find(const FResultText& text, const std::vector<FAnchorPlaces>& places) const;

    /**
     * Only the order: ascending by the place of the anchor (0 without one), then by line, column and name. Values equal
     * in all of them keep their order, and so do all values for an empty text.
     */
    std::vector<int> order(const FResultText& text) const;

 private:
    /** A value to read from a line. */
    struct Reading {
        FByteRange line;
        int column;
        size_t value;
    };

    /** Lines of values without an anchor, many of which share one. */
    using LinesInText = std::map<int, FSoughtLine>;

    std::vector<int> order(const FResultText& text, const std::vector<FAnchorPlaces>& trimmed) const;
    FSoughtLine seekLine(const FResultText& text, const FValueDescription& value, const FAnchorPlaces& places,
                         LinesInText& lines) const;
    void read(const FResultText& text, std::vector<Reading>& readings, std::vector<FFoundValue>& found) const;
    void notePlaces(const FResultText& text, const std::vector<FAnchorPlaces>& places,
                    std::vector<FFoundValue>& found) const;
    void noteText(const FResultText& text, std::vector<FFoundValue>& found) const;
    const FSeparator* separator() const { return mSeparator.get(); }

    std::vector<FValueDescription> mValues;
    std::vector<int> mSorted;  //!< indices of the values in the order for equal places
    FAnchorSearch mAnchors;
    FSeparatorSettings mSeparators;
    std::shared_ptr<const FSeparator> mSeparator;  //!< null in find-numbers mode
};
