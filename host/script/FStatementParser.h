#pragma once

#include "host/script/FExpressionParser.h"
#include "host/script/FScriptParser.h"

/** Reads the statements of a script. */
class FStatementParser {
 public:
    /** `text` has to outlive the parser. */
    FStatementParser(QStringView text, const FParseMode& mode)
        : mTokens(FLexer(text, mode.firstLine)), mExpressions(mTokens), mMode(mode) {}
    FStatementParser(const FStatementParser&) = delete;
    FStatementParser& operator=(const FStatementParser&) = delete;

    FSyntaxBody script();

    /** The errors of the script as they were found. */
    std::vector<FSyntaxError> takeErrors();
    std::vector<FSyntaxError> takeWarnings() { return mTokens.takeWarnings(); }
    std::vector<int> takePassedOver() { return std::move(mPassedOver); }

 private:
    bool isAtListEnd(FTokenStream::FSkipTo kind) const;
    bool skipIgnoredLine();
    FSyntaxBody statements(FTokenStream::FSkipTo kind);
    FSyntaxStatement statement();
    FSyntaxDeclaration declaration();
    void block(FSyntaxDeclaration& declaration);
    FSyntaxBlockLine blockLine();
    FSyntaxAssignment assignment();
    FSyntaxIf branches();
    FSyntaxWhile whileLoop();
    FSyntaxFor forLoop();
    FSyntaxExpr condition(const char* expectedParen);
    FSyntaxBody body();
    void failAtOpenBlock(const FPlace& begin);
    QString name(const char* expected);
    void endStatement();
    void skipLineEnds();
    void skipSeparators();
    bool report();
    bool recover(const FToken& begin, FTokenStream::FSkipTo to);

    FTokenStream mTokens;
    FExpressionParser mExpressions;
    FParseMode mMode;
    std::vector<FSyntaxError> mErrors;
    int mUntoldErrors = 0;
    std::vector<int> mPassedOver;
};
