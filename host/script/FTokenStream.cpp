#include "host/script/FTokenStream.h"

using Kind = FToken::Kind;

FTokenStream::Level::Level(FTokenStream& tokens) : mTokens(tokens) {
    if (++tokens.mNesting > deepestNesting) {
        tokens.fail(
            tokens.mCurrent.place,
            QStringLiteral("nested more than %1 levels deep: use variables for inner parts").arg(deepestNesting));
    }
}

bool FTokenStream::isAt(std::initializer_list<Kind> kinds) const {
    if (mError) {
        return false;
    }
    FLexer ahead = mLexer;
    FToken token = mCurrent;
    for (const Kind* kind = kinds.begin(); token.kind == *kind; token = ahead.next()) {
        if (++kind == kinds.end()) {
            return true;
        }
    }
    return false;
}

bool FTokenStream::isAtDeclaration() const {
    return isAt({Kind::Name, Kind::Name, Kind::LeftParen}) ||
           isAt({Kind::Ampersand, Kind::Name, Kind::Name, Kind::LeftParen});
}

QString FTokenStream::tooMany() {
    return QStringLiteral("more than %1 words, numbers, texts and signs").arg(mostTokens);
}

void FTokenStream::advance() {
    if (mError) {
        return;
    }
    mPrevious = mCurrent;
    if (mCurrent.lacksQuote) {
        mLongText = mCurrent;
    }
    if (++mTokenCount > mostTokens) {
        fail(mCurrent.place, tooMany() + QStringLiteral(": what follows isn't read"));
        mLexer.skipAll();
    }
    mCurrent = mLexer.next();
}

bool FTokenStream::accept(Kind kind) {
    const bool accepted = isAt(kind);
    if (accepted) {
        advance();
    }
    return accepted;
}

void FTokenStream::expect(Kind kind, const char* expected) {
    if (!accept(kind)) {
        failExpected(expected);
    }
}

void FTokenStream::failExpected(const QString& expected) {
    if (mError) {
        return;
    }
    const bool isOpen = mCurrent.kind == Kind::OpenText;
    if (mPrevious.kind == Kind::Text && mPrevious.lineCount() > 1) {
        fail(mPrevious.place,
             QStringLiteral("a text that began in %1:%2 runs over %3 lines: is its closing \" missing? (expected %4 in "
                            "%5:%6, found %7)")
                 .arg(QString::number(mPrevious.place.line), QString::number(mPrevious.place.column),
                      QString::number(mPrevious.lineCount()), expected, QString::number(mCurrent.place.line),
                      QString::number(mCurrent.place.column), mCurrent.toString()));
    } else if (isOpen && mLongText.kind == Kind::Text) {
        fail(mCurrent.place, QStringLiteral("the text that begins here has no end: expected a closing \", here or in "
                                            "the text that began in %1:%2 and runs over %3 lines")
                                 .arg(mLongText.place.line)
                                 .arg(mLongText.place.column)
                                 .arg(mLongText.lineCount()));
    } else if (isOpen) {
        fail(mCurrent.place, QStringLiteral("the text that begins here has no end: expected a closing \""));
    } else if (mCurrent.kind == Kind::BadNumber) {
        fail(mCurrent.place,
             mCurrent.toString() + QLatin1String(" is no number and no name: a name begins with a letter"));
    } else {
        fail(mCurrent.place,
             QLatin1String("expected ") + expected + QLatin1String(", found ") + mCurrent.toString() + hint(expected));
    }
}

/** How to write what other languages write as the current token. */
QString FTokenStream::hint(const QString& expected) const {
    const bool isAdjacent = mPrevious.begin + mPrevious.text.size() == mCurrent.begin;
    const Kind before = isAdjacent ? mPrevious.kind : Kind::End;
    const bool isOperator =
        before == Kind::Plus || before == Kind::Minus || before == Kind::Star || before == Kind::Slash;
    if (mCurrent.text == QStringView(u"#")) {
        return QStringLiteral(" (a comment begins with //)");
    }
    if (mCurrent.text == QStringView(u"'")) {
        return QStringLiteral(" (a text is between double quotes: \"text\")");
    }
    if (mCurrent.kind == Kind::Assign && isOperator) {
        return QStringLiteral(" (instead of \"k %1= 1\" write \"k = k %1 1\")").arg(mPrevious.text.toString());
    }
    if (mCurrent.kind == Kind::Comma && before == Kind::Number && expected.startsWith(QLatin1String("the end of"))) {
        return QStringLiteral(" (a number has a decimal point, as in 0.5)");
    }
    if (mCurrent.kind == Kind::LeftBracket &&
        (before == Kind::Name || before == Kind::RightParen || before == Kind::RightBracket)) {
        return QStringLiteral(" (an element of a list is list.at(0), list.at(1), …)");
    }
    return {};
}

/** Takes down that a number is read differently from how it is written. */
void FTokenStream::warn(const FPlace& place, const QString& message) {
    constexpr std::size_t most = 20;
    if (!mError && mWarnings.size() < most) {
        mWarnings.push_back({place, message});
    }
}

void FTokenStream::fail(const FPlace& place, const QString& message) {
    if (!mError) {
        mError = FSyntaxError{place, message};
    }
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

/**
 * Goes back to where the statement seems to have lost its end: to a quote, or, if an open bracket made it run on into
 * further lines, to its first line. The latter is done once for each line, so that it costs linear time.
 */
void FTokenStream::beginSkipping(const FToken& begin) {
    if (mCurrent.lacksQuote) {
        mLexer.beginSkipping(mCurrent, 1);
    } else if (mPrevious.lacksQuote && mPrevious.begin >= begin.begin) {
        mLexer.beginSkipping(mPrevious, 1);
    } else if (mCurrent.place.line > begin.place.line && begin.begin > mReadBefore) {
        mReadBefore = mCurrent.begin;
        mLexer.beginSkipping(begin, 0);
    } else {
        mLexer.beginSkipping(mCurrent, 0);
    }
}

void FTokenStream::skipStatement(const FToken& begin, FSkipTo to) {
    beginSkipping(begin);
    int openBraces = 0;
    for (mCurrent = mLexer.next(); !canGoOn(begin, to, openBraces > 0); mCurrent = mLexer.next()) {
        const Kind kind = mCurrent.kind;
        if (kind == Kind::LeftBrace && to != FSkipTo::BlockLine) {
            ++openBraces;
        } else if (kind == Kind::RightBrace && openBraces > 0) {
            --openBraces;
        }
        const bool canEnd = openBraces == 0 && (kind == Kind::Semicolon || kind == Kind::RightBrace);
        if (canEnd || kind == Kind::End) {
            mLexer.endSkipping();
            mCurrent = mLexer.next();
            return;
        }
    }
    mLexer.endSkipping();
}

bool FTokenStream::canGoOn(const FToken& begin, FSkipTo to, bool isInBraces) const {
    const bool beginsLine = mCurrent.isFirstOnLine && mCurrent.begin > begin.begin;
    if (isInBraces) {
        return beginsLine && isAtDeclaration();
    }
    if (mCurrent.kind == Kind::RightBrace) {
        return to != FSkipTo::Statement;
    }
    if (!beginsLine) {
        return false;
    }
    if (to == FSkipTo::BlockLine) {
        return mCurrent.kind == Kind::Dot || isAtDeclaration();
    }
    return mCurrent.kind == Kind::Name || mCurrent.kind == Kind::Ampersand || mCurrent.kind == Kind::If ||
           mCurrent.kind == Kind::While || mCurrent.kind == Kind::For;
}
