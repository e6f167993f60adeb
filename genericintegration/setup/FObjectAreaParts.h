#pragma once

#include "host/script/FSyntaxStatement.h"

/**
 * The statements of an object area, each in the order of the text. Those that name the definition, directly or through
 * other objects, are kept apart: objects that default values name come before them. Time linear in the length.
 */
struct FObjectAreaParts {
    /** @param definition  the name of the definition in the file */
    FObjectAreaParts(FSyntaxBody statements, const QString& definition);

    /** The names of the objects, in the order of the text. */
    static QStringList declaredNames(const FSyntaxBody& statements);

    FSyntaxBody independent;
    FSyntaxBody dependent;
};
