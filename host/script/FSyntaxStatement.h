#pragma once

#include "host/core/FExport.h"
#include "host/script/FSyntaxExpr.h"

#include <variant>
#include <vector>

struct FSyntaxStatement;
using FSyntaxBody = std::vector<FSyntaxStatement>;

/** One line of a declaration's block: commands, each of them a Call, of which the first is for the declared object. */
using FSyntaxBlockLine = std::vector<FSyntaxExpr>;

/** creator name(arguments) { .command(arguments) … } */
struct MERIX_EXPORT FSyntaxDeclaration {
    bool isOutsideScope = false;  //!< a `&` precedes the creator
    FSyntaxExpr creator;          //!< the Call creator(arguments)
    QString name;
    FPlace namePlace;
    std::vector<FSyntaxBlockLine> block;
};

/** variable = value */
struct MERIX_EXPORT FSyntaxAssignment {
    QString variable;
    FSyntaxExpr value;
};

/** if (condition) body else if (condition) body … else otherwise */
struct MERIX_EXPORT FSyntaxIf {
    struct Branch {
        FSyntaxExpr condition;
        FSyntaxBody body;
    };
    std::vector<Branch> branches;
    FSyntaxBody otherwise;
};

/** while (condition) body */
struct MERIX_EXPORT FSyntaxWhile {
    FSyntaxExpr condition;
    FSyntaxBody body;
};

/** for (variable in list) body */
struct MERIX_EXPORT FSyntaxFor {
    QString variable;
    FPlace variablePlace;
    FSyntaxExpr list;
    FSyntaxBody body;
};

/** A statement as it is written; its place is that of its first character. */
struct MERIX_EXPORT FSyntaxStatement {
    FPlace place;
    std::variant<FSyntaxExpr, FSyntaxDeclaration, FSyntaxAssignment, FSyntaxIf, FSyntaxWhile, FSyntaxFor> content;
};
