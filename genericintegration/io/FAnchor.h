#pragma once

#include <QString>

/** Which occurrence of an anchor is used. */
enum class FAnchorOccurrence { First, Last };

/** A text in an output file from which the line of a value is counted. */
struct FAnchor {
    QString text;  //!< matches in any case; empty for none
    FAnchorOccurrence occurrence = FAnchorOccurrence::Last;

    bool operator==(const FAnchor&) const = default;
};

/** Index of an anchor in a text; -1 for an empty anchor and for one that the text doesn't contain. */
int getAnchorPosition(const FAnchor& anchor, const QString& text);
