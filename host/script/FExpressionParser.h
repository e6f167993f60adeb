#pragma once

#include "host/script/FSyntaxExpr.h"
#include "host/script/FTokenStream.h"

/** Reads expressions from a token stream. What it returns is of use only if the stream hasn't failed. */
class FExpressionParser {
 public:
    /** Bound of FSyntaxExpr::height; what is higher is an error. */
    static constexpr int greatestHeight = 10000;

    explicit FExpressionParser(FTokenStream& tokens) : mTokens(tokens) {}

    FSyntaxExpr expression();

    /** name(arguments) */
    FSyntaxExpr call(const char* expectedName, const char* expectedParen);

    /** .command(arguments) */
    FSyntaxExpr command();

    /** (arguments), which become the operands of `call`. */
    void arguments(FSyntaxExpr& call, const char* expectedParen);

 private:
    FSyntaxExpr row(int priority);
    FSyntaxExpr unary();
    FSyntaxExpr power();
    FSyntaxExpr chain();
    FSyntaxExpr primary();
    FSyntaxExpr literal(FLiteral value);
    FSyntaxExpr number();
    void warnOfNumber(double value);
    FSyntaxExpr nameOrCall();
    FSyntaxExpr list();
    FSyntaxExpr group();
    void elements(FSyntaxExpr& node, FToken::Kind close, const char* expectedClose);
    FSyntaxExpr begin(FSyntaxExpr::Kind kind) const;
    FSyntaxExpr beginRow(FSyntaxExpr::Kind kind, FSyntaxExpr first) const;
    void addOperator(FSyntaxExpr& node, FOperator kind);
    void addOperand(FSyntaxExpr& node, FSyntaxExpr operand, int height);

    FTokenStream& mTokens;
};
