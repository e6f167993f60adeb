#pragma once

#include "genericintegration/templates/FTextPlaces.h"

#include <QStringView>

/** Outcome for a tag when its template is written. */
enum class FTagOutcome {
    Replaced,      //!< by the text of a row
    Unknown,       //!< no row has its name; replaced by nothing
    Unterminated,  //!< no closing marker: it and the rest of the template are dropped
};

/** One tag of a template and its outcome. Valid only during the call of the observer. */
struct FTagReport {
    FTagOutcome outcome;
    QStringView name;     //!< as looked up; empty for an unterminated tag
    int row;              //!< row that replaced it, or -1
    qsizetype position;   //!< of the tag in the template, in UTF-16 units
    FTextPlaces& places;  //!< of the template

    /** The position as line and column. Calls for all tags of a template together take time linear in its size. */
    FTextPlace place() const { return places.at(position); }
};
