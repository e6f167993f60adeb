#pragma once

#include "host/core/FExport.h"
#include "host/script/FOperator.h"
#include "host/script/FPlace.h"

#include <QStringList>

#include <variant>
#include <vector>

struct MERIX_EXPORT FSyntaxOperator {
    FOperator kind;
    FPlace place;
};

/** NULL, true or false, a number without point and exponent that fits, any other number, a text without its quotes. */
using FLiteral = std::variant<std::monostate, bool, qint64, double, QString>;

/** An expression as it is written. Nothing is looked up: names and commands may exist or not. */
struct MERIX_EXPORT FSyntaxExpr {
    enum class Kind {
        Literal,  //!< `literal`
        Name,     //!< `name`
        List,     //!< `operands` are its elements
        Call,     //!< name(operands); a command of a Chain or a block, which follows a dot, is a Call as well
        Chain,    //!< the first operand receives the first command, each further operand is a command and a Call
        Unary,    //!< one operator, one operand
        Row       //!< operands with an operator between each two, to be evaluated from left to right
    };

    Kind kind = Kind::Literal;
    FPlace place;    //!< of the first character; a command's is that of its name
    int height = 1;  //!< most nodes on a way down when each operator and command of a row or chain nests the one before
    FLiteral literal;
    QString name;
    std::vector<FSyntaxExpr> operands;
    std::vector<FSyntaxOperator> operators;

    /** The names in the expression and in its operands, in the order of the text; a name may occur again. */
    QStringList getNames() const;
};
