#pragma once

#include <QString>

/** Which occurrence of an anchor counts. */
enum class FAnchorOccurrence { First, Last };

/** A text that positions a value in an output file. */
struct FAnchor {
    QString text;  //!< found in any case; empty for none
    FAnchorOccurrence occurrence = FAnchorOccurrence::Last;

    bool operator==(const FAnchor&) const = default;
};

/** Index of an anchor in a text; -1 for an empty anchor and for one that isn't there. */
int getAnchorPosition(const FAnchor& anchor, const QString& text);
