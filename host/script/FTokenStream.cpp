#include "host/script/FTokenStream.h"

using Kind = FToken::Kind;

FTokenStream::Level::Level(FTokenStream& tokens) : mTokens(tokens) {
    if (++tokens.mNesting > deepestNesting)
        tokens.fail(
            tokens.mCurrent.place,
            QStringLiteral("nested more than %1 levels deep: use variables for inner parts").arg(deepestNesting));
}

bool FTokenStream::isAt(std::initializer_list<Kind> kinds) const {
    if (mError)
        return false;
    FLexer ahead = mLexer;
    FToken token = mCurrent;
    for (const Kind* kind = kinds.begin(); token.kind == *kind; token = ahead.next()) {
        if (++kind == kinds.end())
            return true;
    }
    return false;
}

bool FTokenStream::isAtDeclaration() const {
    return isAt({Kind::Name, Kind::Name, Kind::LeftParen}) ||
           isAt({Kind::Ampersand, Kind::Name, Kind::Name, Kind::LeftParen});
}

void FTokenStream::advance() {
    if (mError)
        return;
    mPrevious = mCurrent;
    mCurrent = mLexer.next();
}

bool FTokenStream::accept(Kind kind) {
    const bool accepted = isAt(kind);
    if (accepted)
        advance();
    return accepted;
}

void FTokenStream::expect(Kind kind, const char* expected) {
    if (!accept(kind))
        failExpected(expected);
}

void FTokenStream::failExpected(const QString& expected) {
    if (mError)
        return;
    if (mCurrent.kind == Kind::OpenText)
        fail(mCurrent.place, QStringLiteral("the text that begins here has no end: expected a closing \""));
    else if (mCurrent.kind == Kind::BadNumber)
        fail(mCurrent.place,
             mCurrent.toString() + QLatin1String(" is no number and no name: a name begins with a letter"));
    else
        fail(mCurrent.place, QLatin1String("expected ") + expected + QLatin1String(", found ") + mCurrent.toString());
}

void FTokenStream::fail(const FPlace& place, const QString& message) {
    if (!mError)
        mError = FSyntaxError{place, message};
}

FSyntaxError FTokenStream::takeError() {
    FSyntaxError error = std::move(*mError);
    mError.reset();
    return error;
}

void FTokenStream::skipLine() {
    mLexer.skipLine();
    advance();
}

void FTokenStream::skipStatement(int begin, FSkipTo to) {
    if (mCurrent.lacksQuote)
        mLexer.beginSkipping(mCurrent, 1);
    else if (mPrevious.lacksQuote && mPrevious.begin >= begin)
        mLexer.beginSkipping(mPrevious, 1);
    else
        mLexer.beginSkipping(mCurrent, 0);
    int openBraces = 0;
    for (mCurrent = mLexer.next(); openBraces > 0 || !canGoOn(begin, to); mCurrent = mLexer.next()) {
        const Kind kind = mCurrent.kind;
        if (kind == Kind::LeftBrace)
            ++openBraces;
        else if (kind == Kind::RightBrace && openBraces > 0)
            --openBraces;
        const bool endsHere = kind == Kind::Semicolon || kind == Kind::RightBrace;
        if (kind == Kind::End || (endsHere && openBraces == 0)) {
            mLexer.endSkipping();
            mCurrent = mLexer.next();
            return;
        }
    }
    mLexer.endSkipping();
}

bool FTokenStream::canGoOn(int begin, FSkipTo to) const {
    if (mCurrent.kind == Kind::RightBrace)
        return to != FSkipTo::Statement;
    if (!mCurrent.isFirstOnLine || mCurrent.begin <= begin)
        return false;
    if (to == FSkipTo::BlockLine)
        return mCurrent.kind == Kind::Dot || isAtDeclaration();
    return mCurrent.kind == Kind::Name || mCurrent.kind == Kind::Ampersand || mCurrent.kind == Kind::If ||
           mCurrent.kind == Kind::While || mCurrent.kind == Kind::For;
}
