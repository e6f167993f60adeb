#pragma once

#include "host/core/FExport.h"
#include "host/script/FPlace.h"

/** What is wrong with the text of a script, and where. */
struct MERIX_EXPORT FSyntaxError {
    FPlace place;
    QString message;

    /** As a user reads it: run.script:12:7: expected ")" after the arguments, found "}" */
    QString toString(const QString& file) const { return place.toString(file) + QLatin1String(": ") + message; }
};
