#pragma once

#include <QStringView>

#include <optional>

/** A word, text or sign of a file in Tecplot's ASCII form. */
struct FTecplotToken {
    enum class Kind { Word, Text, List, Equals, End };

    Kind kind = Kind::End;
    QStringView text;  //!< a text without its quotes, a list without its parentheses
    int line = 0;      //!< from 1

    /** Whether it is this word, in any case. */
    bool is(QStringView word) const { return kind == Kind::Word && text.compare(word, Qt::CaseInsensitive) == 0; }
};

/** A number of such a file, and how often it stands for itself: "2.5", or "3*2.5" for three of it. */
struct FTecplotNumber {
    double value;
    qint64 count;

    /** The number in a token; none if it contains none. Exponents are written with E or D. */
    static std::optional<FTecplotNumber> of(const FTecplotToken& token);
};

/** Divides the text of such a file into tokens. Commas separate as blanks do; "#" starts a comment. */
class FTecplotTokens {
 public:
    /** The text must outlive this object and its tokens. */
    explicit FTecplotTokens(QStringView text) : mText(text) { advance(); }

    const FTecplotToken& current() const { return mCurrent; }
    /** Moves to the next token. After the last one the kind is End, with the last line. */
    void advance();

 private:
    void skipBlanks();
    void takeUpTo(QChar end, FTecplotToken::Kind kind);

    QStringView mText;
    qsizetype mPlace = 0;
    int mLine = 1;
    FTecplotToken mCurrent;
};
