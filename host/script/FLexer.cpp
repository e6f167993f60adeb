#include "host/script/FLexer.h"

#include "host/core/FObjectName.h"
#include "host/core/FQuotedText.h"
#include "host/script/FOperator.h"

#include <algorithm>
#include <iterator>

namespace {

using Kind = FToken::Kind;

bool isBlank(QChar c) {
    return c == ' ' || c == '\t' || (c.isSpace() && c != '\n' && c != '\r');
}

Kind kindOfWord(QStringView word) {
    switch (reservedWord(word)) {
        case FReservedWord::If:
            return Kind::If;
        case FReservedWord::Else:
            return Kind::Else;
        case FReservedWord::While:
            return Kind::While;
        case FReservedWord::For:
            return Kind::For;
        case FReservedWord::True:
            return Kind::True;
        case FReservedWord::False:
            return Kind::False;
        case FReservedWord::Null:
            return Kind::Null;
        case FReservedWord::None:
            break;
    }
    return Kind::Name;
}

/** The operator that one or two signs are. */
Kind kindOfOperator(QStringView signs) {
    const auto* found = std::find_if(operatorRows.begin(), operatorRows.end(),
                                     [signs](const auto& row) { return signs == QLatin1String(row.text); });
    return found == operatorRows.end() ? Kind::BadCharacter : found->token;
}

Kind kindOfSign(QStringView sign) {
    static constexpr QStringView others = u"()[]{}.,;:&=";
    static constexpr Kind kinds[] = {Kind::LeftParen, Kind::RightParen, Kind::LeftBracket, Kind::RightBracket,
                                     Kind::LeftBrace, Kind::RightBrace, Kind::Dot,         Kind::Comma,
                                     Kind::Semicolon, Kind::Colon,      Kind::Ampersand,   Kind::Assign};
    static_assert(others.size() == std::size(kinds));
    const auto index = others.indexOf(sign.front());
    return index < 0 ? kindOfOperator(sign) : kinds[index];
}

/** Whether a text that ended at `quote` would end where another one usually begins, as in `name("`. */
bool standsLikeOpening(QStringView text, qsizetype quote) {
    do {
        --quote;
    } while (quote >= 0 && isBlank(text[quote]));
    return quote >= 0 && QStringView(u"([,=").contains(text[quote]);
}

}  // namespace

FToken FLexer::next() {
    skipBlanks();
    if (mPosition == mText.size()) {
        return take(Kind::End, 0);
    }
    if (const int length = lineEndAt(mPosition)) {
        const FToken token = take(Kind::LineEnd, length);
        beginLine(mPosition);
        return token;
    }
    if (at(mPosition) == '"') {
        return takeText();
    }
    if (isDigitAt(mPosition) || (at(mPosition) == '.' && isDigitAt(mPosition + 1))) {
        return takeNumber();
    }
    if (const int length = nameLength(mText, static_cast<int>(mPosition))) {
        return takeWord(length);
    }
    return takeSymbol();
}

FToken FLexer::take(Kind kind, qsizetype length) {
    FToken token;
    token.kind = kind;
    token.place = {mLine, static_cast<int>(mPosition - mLineStart) + 1};
    token.begin = static_cast<int>(mPosition);
    token.text = mText.mid(mPosition, length);
    token.isFirstOnLine = mIsFirstOnLine;
    mIsFirstOnLine = false;
    mPosition += length;
    return token;
}

FToken FLexer::takeText() {
    findTextEnd();
    if (mTextIsOpen) {
        return take(Kind::OpenText, 1);
    }
    if (mIsSkipping && mTextLacksQuote) {
        return take(Kind::Text, 1);
    }
    const qsizetype begin = mPosition;
    FToken token = take(Kind::Text, mTextEnd - mPosition);
    token.lacksQuote = mTextLacksQuote;
    for (qsizetype end = lineEndFrom(begin, mTextEnd); end < mTextEnd; end = lineEndFrom(mLineStart, mTextEnd)) {
        ++mLine;
        mLineStart = end + lineEndAt(end);
    }
    return token;
}

void FLexer::findTextEnd() {
    if (mTextBegin >= 0 && mPosition >= mTextBegin && mPosition < mTextEnd - (mTextIsOpen ? 0 : 1)) {
        return;
    }
    const int close = closingQuote(mText, static_cast<int>(mPosition));
    mTextBegin = mPosition;
    mTextIsOpen = close < 0;
    mTextEnd = mTextIsOpen ? mText.size() : close + 1;
    mTextLacksQuote = !mTextIsOpen && lineEndFrom(mPosition, close) < close && standsLikeOpening(mText, close);
}

FToken FLexer::takeNumber() {
    qsizetype end = digitsFrom(mPosition);
    if (at(end) == '.') {
        const qsizetype behindPoint = digitsFrom(end + 1);
        // A name after the point is a command of the number, unless it is the exponent.
        const bool isCommand = behindPoint == end + 1 && exponentFrom(behindPoint) == behindPoint &&
                               nameLength(mText, static_cast<int>(behindPoint)) > 0;
        if (!isCommand) {
            end = behindPoint;
        }
    }
    end = exponentFrom(end);
    const int letters = nameLength(mText, static_cast<int>(end));
    return take(letters > 0 ? Kind::BadNumber : Kind::Number, end + letters - mPosition);
}

FToken FLexer::takeWord(int length) {
    return take(kindOfWord(mText.mid(mPosition, length)), length);
}

FToken FLexer::takeSymbol() {
    const QStringView signs = mText.mid(mPosition, 2);
    const Kind pair = signs.size() == 2 ? kindOfOperator(signs) : Kind::BadCharacter;
    if (pair != Kind::BadCharacter) {
        return take(pair, 2);
    }
    const bool isSurrogatePair = at(mPosition).isHighSurrogate() && at(mPosition + 1).isLowSurrogate();
    const FToken token = take(kindOfSign(signs.left(1)), isSurrogatePair ? 2 : 1);
    if (token.kind == Kind::LeftParen || token.kind == Kind::LeftBracket) {
        ++mBrackets;
    } else if (mBrackets > 0 && (token.kind == Kind::RightParen || token.kind == Kind::RightBracket)) {
        --mBrackets;
    }
    return token;
}

void FLexer::skipBlanks() {
    while (mPosition < mText.size()) {
        const int lineEnd = mBrackets > 0 ? lineEndAt(mPosition) : 0;
        if (isBlank(mText[mPosition])) {
            ++mPosition;
        } else if (isCommentAt(mPosition)) {
            mPosition = lineEndFrom(mPosition, mText.size());
        } else if (lineEnd > 0) {
            beginLine(mPosition += lineEnd);
        } else {
            return;
        }
    }
}

void FLexer::beginLine(qsizetype position) {
    ++mLine;
    mLineStart = position;
    mIsFirstOnLine = true;
}

void FLexer::skipLine() {
    mPosition = lineEndFrom(mPosition, mText.size());
}

void FLexer::beginSkipping(const FToken& token, int offset) {
    mPosition = token.begin + offset;
    mLine = token.place.line;
    mLineStart = token.begin - (token.place.column - 1);
    mIsFirstOnLine = token.isFirstOnLine && offset == 0;
    mIsSkipping = true;
}

void FLexer::endSkipping() {
    mIsSkipping = false;
    mBrackets = 0;
}

int FLexer::lineEndAt(qsizetype position) const {
    if (at(position) == '\r') {
        return at(position + 1) == '\n' ? 2 : 1;
    }
    return at(position) == '\n' ? 1 : 0;
}

/** The first line end from `position` on; `before` if there is none before that. */
qsizetype FLexer::lineEndFrom(qsizetype position, qsizetype before) const {
    while (position < before && lineEndAt(position) == 0) {
        ++position;
    }
    return position;
}

qsizetype FLexer::digitsFrom(qsizetype position) const {
    while (isDigitAt(position)) {
        ++position;
    }
    return position;
}

/** The end of the exponent that begins at `position`; `position` itself if none does. */
qsizetype FLexer::exponentFrom(qsizetype position) const {
    if (at(position) != 'e' && at(position) != 'E') {
        return position;
    }
    const bool isSigned = at(position + 1) == '+' || at(position + 1) == '-';
    const qsizetype digits = position + (isSigned ? 2 : 1);
    return isDigitAt(digits) ? digitsFrom(digits) : position;
}
