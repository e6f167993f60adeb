#pragma once

#include "host/script/FPlace.h"

#include <QString>

/** A word, number, text or sign of a script. It points into the script's text. */
struct FToken {
    enum class Kind {
        End,
        LineEnd,
        Name,
        If,
        Else,
        While,
        For,
        True,
        False,
        Null,
        Number,
        Text,
        OpenText,      //!< a quote that opens a text which nothing closes
        BadNumber,     //!< digits with letters at their end
        BadCharacter,  //!< what begins nothing of the language
        LeftParen,
        RightParen,
        LeftBracket,
        RightBracket,
        LeftBrace,
        RightBrace,
        Dot,
        Comma,
        Semicolon,
        Colon,
        Ampersand,
        Assign,
        Or,
        And,
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        Plus,
        Minus,
        Star,
        Slash,
        Percent,
        Caret,
        Not
    };

    Kind kind = Kind::End;
    FPlace place;
    int begin = 0;               //!< position of the first character in the script's text
    QStringView text;            //!< as it is written, a text with its quotes
    bool isFirstOnLine = false;  //!< only blanks precede it on its line
    bool lacksQuote = false;     //!< a text over several lines that ends where another seems to begin

    /** The lines that it extends over. */
    int lineCount() const;
    /** The token as a message shows it: "}", the text "abc", the end of the line. Long ones are cut. */
    QString toString() const;
};
