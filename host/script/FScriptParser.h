#pragma once

#include "host/core/FExport.h"
#include "host/script/FSyntaxError.h"
#include "host/script/FSyntaxStatement.h"

#include <optional>

/**
 * A script as far as it could be read. `statements` can be executed if there are no errors, or if the script
 * was read with recovery.
 */
struct MERIX_EXPORT FScript {
    QString file;
    FSyntaxBody statements;
    std::vector<FSyntaxError> errors;
    std::vector<FSyntaxError> warnings;  //!< numbers that are read differently from how they are written
    std::vector<int> passedOver;         //!< where the lines begin that were passed over
};

struct MERIX_EXPORT FParseMode {
    /**
     * Go on after an error. What is lost then: a damaged line of a declaration's block, else a damaged statement with
     * its block. Without it the first error is the only one.
     */
    bool recovers = false;
    /** Pass over lines of the form `word : rest`. */
    bool isObjectArea = false;
    /** The line of the file where the text begins. */
    int firstLine = 1;
};

/** Longest script, in UTF-16 units; a longer one is an error and not looked at. */
constexpr int longestScript = 512 * 1024 * 1024;

/** Errors that are reported one by one; the last one then gives the number of further errors. */
constexpr int mostErrors = 1000;

/**
 * Reads a script in time linear in its length. No text makes it crash or go deep into the stack. `file` is the name
 * that messages give; it is passed on only.
 */
MERIX_EXPORT FScript parseScript(const QString& text, const QString& file, const FParseMode& mode = {});

struct MERIX_EXPORT FParsedExpression {
    FSyntaxExpr expression;  //!< of use if there is no error
    std::optional<FSyntaxError> error;
};

/** Reads a text that is one expression and nothing else. Line ends are blanks in it. */
MERIX_EXPORT FParsedExpression parseExpression(const QString& text);
