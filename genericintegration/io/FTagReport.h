#pragma once

#include <QStringView>

#include "genericintegration/templates/FTextPlaces.h"

/** What became of a tag when its template was written. */
enum class FTagOutcome {
    Replaced,      //!< by the text of a row
    Unknown,       //!< no row answers its name; nothing stands in its place
    Unterminated,  //!< no closing marker: it and the rest of the template are lost
};

/** One tag of a template, and what became of it. It lasts as long as the call that tells of it. */
struct FTagReport {
    FTagOutcome outcome;
    QStringView name;     //!< as it was looked up; empty for an unterminated tag
    int row;              //!< that replaced it, or -1
    qsizetype position;   //!< of the tag in the template, in UTF-16 units
    FTextPlaces& places;  //!< of the template

    /**
     * The position as line and column. Asking for each tag takes time linear in the template, asking for none takes
     * none.
     */
    FTextPlace place() const { return places.at(position); }
};
