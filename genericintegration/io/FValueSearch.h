#pragma once

#include <QRegExp>
#include <QString>

#include <map>
#include <vector>

#include "genericintegration/io/FAnchorSearch.h"
#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FSoughtLine.h"
#include "genericintegration/io/FValueDescription.h"

class FResultText;

/** What a search found. */
struct FFoundValues {
    std::vector<FFoundValue> values;  //!< in the order of the descriptions
    std::vector<int> order;           //!< of a table: numbers of the descriptions
};

/**
 * Finds all values of a result template in the text of an output file.
 *
 * The text is searched once for all anchors together. A value then costs its line; values in the same line cost it
 * once; a row of several averages costs once. An object can be used for any number of texts.
 */
class FValueSearch {
 public:
    FValueSearch(std::vector<FValueDescription> values, const FSeparatorSettings& separators);

    /** Whether the values and separators are those given to the constructor. */
    bool isFor(const std::vector<FValueDescription>& values, const FSeparatorSettings& separators) const {
        return mSeparators == separators && mValues == values;
    }

    /** Why the separators' regular expression isn't valid; empty if it is. One that isn't matches nothing. */
    QString patternError() const;

    FFoundValues find(const FResultText& text) const;

    /**
     * The order alone: ascending by the anchor's place (0 without one), then by line, column and name. What is equal
     * in all of them keeps its order, and so do all values for an empty text.
     */
    std::vector<int> order(const FResultText& text) const;

 private:
    /** A value to be read from a line. */
    struct Reading {
        FByteRange line;
        int column;
        size_t value;
    };

    /** Lines of values without an anchor, which many share. */
    using LinesInText = std::map<int, FSoughtLine>;

    std::vector<int> order(const FResultText& text, const std::vector<FAnchorPlaces>& trimmed) const;
    FSoughtLine seekLine(const FResultText& text, const FValueDescription& value, const FAnchorPlaces& places,
                         LinesInText& lines) const;
    void read(const FResultText& text, std::vector<Reading>& readings, std::vector<FFoundValue>& found) const;
    const QRegExp* separator() const { return mSeparators.findNumbers ? nullptr : &mSeparator; }

    std::vector<FValueDescription> mValues;
    std::vector<int> mSorted;  //!< numbers of the values by what orders those at the same place
    FAnchorSearch mAnchors;
    FSeparatorSettings mSeparators;
    QRegExp mSeparator;
};
