#pragma once

#include "host/core/FExport.h"

#include <QString>

/** Why a program can't be started, and what the user can do about it: sentences without their final full stops. */
struct MERIX_EXPORT FProgramFault {
    QString text;    //!< empty if nothing prevents the start
    QString remedy;  //!< empty if there is none to give

    /** Both, as sentences. */
    QString toSentences() const;
};
