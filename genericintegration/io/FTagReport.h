#pragma once

#include <QString>

#include "genericintegration/templates/FTextPlaces.h"

/// What became of a tag when its template was written.
enum class FTagOutcome {
    Replaced,      ///< by the text of a row
    Unknown,       ///< no row answers its name; nothing stands in its place
    Unterminated,  ///< no closing marker: it and the rest of the template are lost
};

/// One tag of a template, and what became of it.
struct FTagReport {
    FTagOutcome outcome = FTagOutcome::Unknown;
    QString name;            ///< as it was looked up; empty for an unterminated tag
    int row = -1;            ///< that replaced it, or -1
    qsizetype position = 0;  ///< of the tag in the template, in UTF-16 units
    FTextPlace place;        ///< the same as line and column
};
