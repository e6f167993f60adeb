#include "host/script/FStatementParser.h"

using Kind = FToken::Kind;
using FSkipTo = FTokenStream::FSkipTo;

namespace {

bool beginsNoStatement(Kind kind) {
    return kind == Kind::Dot || kind == Kind::LeftBrace || kind == Kind::RightBrace || kind == Kind::Else ||
           kind == Kind::Semicolon || kind == Kind::End;
}

}  // namespace

FSyntaxBody FStatementParser::script() {
    return statements(FSkipTo::Statement);
}

std::vector<FSyntaxError> FStatementParser::takeErrors() {
    if (mTokens.hasFailed()) {
        mErrors.push_back(mTokens.takeError());
    }
    if (mUntoldErrors > 0) {
        mErrors.push_back({mErrors.back().place, QStringLiteral("%1 more errors after this one").arg(mUntoldErrors)});
    }
    return std::move(mErrors);
}

FSyntaxBody FStatementParser::statements(FSkipTo kind) {
    FSyntaxBody body;
    for (skipSeparators(); !isAtListEnd(kind); skipSeparators()) {
        if (skipIgnoredLine()) {
            continue;
        }
        const FToken begin = mTokens.current();
        FSyntaxStatement next = statement();
        if (!mTokens.hasFailed()) {
            body.push_back(std::move(next));
        } else if (!recover(begin, kind)) {
            break;
        }
    }
    return body;
}

bool FStatementParser::isAtListEnd(FSkipTo kind) const {
    return mTokens.isAt(Kind::End) || (kind != FSkipTo::Statement && mTokens.isAt(Kind::RightBrace));
}

bool FStatementParser::skipIgnoredLine() {
    const bool ignored = mMode.isObjectArea && mTokens.isAt({Kind::Name, Kind::Colon});
    if (ignored) {
        mPassedOver.push_back(mTokens.current().begin);
        mTokens.skipLine();
    }
    return ignored;
}

FSyntaxStatement FStatementParser::statement() {
    const FTokenStream::Level level(mTokens);
    FSyntaxStatement result;
    result.place = mTokens.current().place;
    if (mTokens.isAt(Kind::If)) {
        result.content = branches();
    } else if (mTokens.isAt(Kind::While)) {
        result.content = whileLoop();
    } else if (mTokens.isAt(Kind::For)) {
        result.content = forLoop();
    } else if (mTokens.isAt(Kind::Ampersand) || mTokens.isAt({Kind::Name, Kind::Name})) {
        result.content = declaration();
    } else if (mTokens.isAt({Kind::Name, Kind::Assign})) {
        result.content = assignment();
    } else if (beginsNoStatement(mTokens.kind())) {
        mTokens.failExpected("a statement");
    } else {
        result.content = mExpressions.expression();
        endStatement();
    }
    return result;
}

FSyntaxDeclaration FStatementParser::declaration() {
    FSyntaxDeclaration result;
    result.isOutsideScope = mTokens.accept(Kind::Ampersand);
    result.creator.kind = FSyntaxExpr::Kind::Call;
    result.creator.place = mTokens.current().place;
    result.creator.name = name("a creator after \"&\"");
    result.namePlace = mTokens.current().place;
    result.name = name("the name of the new object");
    mExpressions.arguments(result.creator, "\"(\" after the name of the new object");
    if (mTokens.isAt(Kind::LineEnd)) {
        skipLineEnds();
    } else if (!mTokens.isAt(Kind::LeftBrace)) {
        endStatement();
    }
    if (mTokens.isAt(Kind::LeftBrace)) {
        block(result);
    }
    return result;
}

void FStatementParser::block(FSyntaxDeclaration& declaration) {
    const FPlace open = mTokens.current().place;
    mTokens.advance();
    for (skipSeparators(); !mTokens.accept(Kind::RightBrace); skipSeparators()) {
        if (mTokens.isAt(Kind::End) || mTokens.isAtDeclaration()) {
            failAtOpenBlock(open);
            report();
            return;
        }
        const FToken begin = mTokens.current();
        FSyntaxBlockLine line = blockLine();
        if (!mTokens.hasFailed()) {
            declaration.block.push_back(std::move(line));
        } else if (!recover(begin, FSkipTo::BlockLine)) {
            return;
        }
    }
}

FSyntaxBlockLine FStatementParser::blockLine() {
    FSyntaxBlockLine line;
    if (!mTokens.isAt(Kind::Dot)) {
        mTokens.failExpected("a command such as .setName(\"text\") or \"}\"");
    }
    while (mTokens.isAt(Kind::Dot)) {
        line.push_back(mExpressions.command());
    }
    endStatement();
    return line;
}

FSyntaxAssignment FStatementParser::assignment() {
    FSyntaxAssignment result;
    result.variable = name("a variable");
    mTokens.advance();
    result.value = mExpressions.expression();
    endStatement();
    return result;
}

FSyntaxIf FStatementParser::branches() {
    FSyntaxIf result;
    do {
        FSyntaxExpr branchCondition = condition("\"(\" after \"if\"");
        result.branches.push_back({std::move(branchCondition), body()});
        skipSeparators();
        if (!mTokens.accept(Kind::Else)) {
            return result;
        }
    } while (mTokens.isAt(Kind::If));
    result.otherwise = body();
    return result;
}

FSyntaxWhile FStatementParser::whileLoop() {
    FSyntaxWhile result;
    result.condition = condition("\"(\" after \"while\"");
    result.body = body();
    return result;
}

FSyntaxFor FStatementParser::forLoop() {
    FSyntaxFor result;
    mTokens.advance();
    mTokens.expect(Kind::LeftParen, "\"(\" after \"for\", as in \"for (x in list)\"");
    result.variablePlace = mTokens.current().place;
    result.variable = name("the name of a variable");
    if (mTokens.current().text != QStringView(u"in")) {
        mTokens.failExpected("\"in\" after the variable");
    }
    mTokens.advance();
    result.list = mExpressions.expression();
    mTokens.expect(Kind::RightParen, "\")\" after the list");
    result.body = body();
    return result;
}

FSyntaxExpr FStatementParser::condition(const char* expectedParen) {
    mTokens.advance();
    mTokens.expect(Kind::LeftParen, expectedParen);
    FSyntaxExpr result = mExpressions.expression();
    mTokens.expect(Kind::RightParen, "\")\" after the condition");
    return result;
}

FSyntaxBody FStatementParser::body() {
    skipLineEnds();
    const FPlace open = mTokens.current().place;
    FSyntaxBody result;
    if (!mTokens.accept(Kind::LeftBrace)) {
        result.push_back(statement());
        return result;
    }
    result = statements(FSkipTo::NestedStatement);
    if (!mTokens.accept(Kind::RightBrace)) {
        failAtOpenBlock(open);
    }
    return result;
}

void FStatementParser::failAtOpenBlock(const FPlace& begin) {
    mTokens.failExpected(QStringLiteral("\"}\" to close the block that begins in line %1").arg(begin.line));
}

QString FStatementParser::name(const char* expected) {
    const QString text = mTokens.current().text.toString();
    mTokens.expect(Kind::Name, expected);
    return text;
}

void FStatementParser::endStatement() {
    const bool isSeparated = mTokens.accept(Kind::LineEnd) || mTokens.accept(Kind::Semicolon);
    if (!isSeparated && !mTokens.isAt(Kind::End) && !mTokens.isAt(Kind::RightBrace)) {
        mTokens.failExpected("the end of the statement");
    }
}

void FStatementParser::skipLineEnds() {
    while (mTokens.accept(Kind::LineEnd)) {
    }
}

void FStatementParser::skipSeparators() {
    while (mTokens.accept(Kind::LineEnd) || mTokens.accept(Kind::Semicolon)) {
    }
}

/** Takes down an error and lets the stream go on, if the mode wants that. */
bool FStatementParser::report() {
    if (!mMode.recovers) {
        return false;
    }
    const bool isFollowUp = mTokens.isFollowUp();
    FSyntaxError error = mTokens.takeError();
    if (isFollowUp) {
        return true;
    }
    if (mErrors.size() < mostErrors) {
        mErrors.push_back(std::move(error));
    } else {
        ++mUntoldErrors;
    }
    return true;
}

bool FStatementParser::recover(const FToken& begin, FSkipTo to) {
    const bool goesOn = report();
    if (goesOn) {
        mTokens.skipStatement(begin, to);
    }
    return goesOn;
}
