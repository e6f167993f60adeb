#pragma once

#include "host/script/FToken.h"

/**
 * Cuts the text of a script into tokens, one at a time and in linear time. Blanks, comments and, inside ( ) and [ ],
 * line ends are passed over. The text has to outlive the lexer and its tokens. Copying a lexer is cheap: a copy looks
 * ahead.
 */
class FLexer {
 public:
    explicit FLexer(QStringView text, int firstLine = 1) : mText(text), mLine(firstLine) {}

    /** The next token; End at the end, at each further call. */
    FToken next();

    /** Takes line ends as blanks, as inside a bracket that never closes. */
    void ignoreLineEnds() { mBrackets = 1; }

    /** Continues with the line end after the present place, whatever comes before it. */
    void skipLine();

    /** Goes on at the end. */
    void skipAll() { mPosition = mText.size(); }

    /**
     * Begins to pass over a damaged statement: continues `offset` characters after the start of `token`. From now on a
     * text that lacks its closing quote is taken for its opening quote alone.
     */
    void beginSkipping(const FToken& token, int offset);

    /** Goes on with a new statement, outside of all brackets. */
    void endSkipping();

 private:
    FToken take(FToken::Kind kind, qsizetype length);
    FToken takeText();
    FToken takeNumber();
    FToken takeWord(int length);
    FToken takeSymbol();
    void skipBlanks();
    void beginLine(qsizetype position);
    void findTextEnd();
    QChar at(qsizetype position) const { return position < mText.size() ? mText[position] : QChar(); }
    bool isDigitAt(qsizetype position) const { return at(position) >= '0' && at(position) <= '9'; }
    bool isCommentAt(qsizetype position) const { return at(position) == '/' && at(position + 1) == '/'; }
    int lineEndAt(qsizetype position) const;
    qsizetype lineEndFrom(qsizetype position, qsizetype before) const;
    qsizetype digitsFrom(qsizetype position) const;
    qsizetype exponentFrom(qsizetype position) const;

    QStringView mText;
    qsizetype mPosition = 0;
    qsizetype mLineStart = 0;
    int mLine;
    int mBrackets = 0;
    bool mIsFirstOnLine = true;
    bool mIsSkipping = false;
    // The text looked at last, from its opening quote to after its closing one. A quote met in between is an escaped
    // one, and so a text that is taken to begin there ends at the same place. Without this, skipping could be
    // quadratic.
    qsizetype mTextBegin = -1;
    qsizetype mTextEnd = -1;
    bool mTextIsOpen = false;
    bool mTextLacksQuote = false;
};
