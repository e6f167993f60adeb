#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QStringList>

#include <vector>

/** A part of a value that an entry holds, such as the file name of an input file. */
struct MERIX_EXPORT FValueField {
    QString label;
    QStringList choices;  //!< the texts that it can have; empty if it is an expression
    /** The present expression; for a choice its text. */
    FExprBase (*get)(const FObject& value);
    /** Changes the value in place; the caller opens the step. False if the new one is refused. */
    bool (*set)(FObject& value, const FExprBase& part);

    /** The fields of a value; none for a value without parts. */
    static const std::vector<FValueField>& of(const FObject* value);
};
