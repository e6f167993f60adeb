#pragma once

#include "host/script/FLexer.h"
#include "host/script/FSyntaxError.h"

#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

/**
 * The tokens of a script as a parser wants them: one at a time, with questions about it, and with the first error.
 * After an error the stream doesn't advance and its token is of no kind, so that a parser runs to its end by itself and
 * asks for the error only where it matters.
 */
class FTokenStream {
 public:
    static constexpr int deepestNesting = 200;
    /** Bounds the memory that the syntax of a script takes; what follows is an error and not read. */
    static constexpr int mostTokens = 8'000'000;

    /** Where passing over a damaged statement may stop. */
    enum class FSkipTo {
        Statement,        //!< where a statement begins a line, or after a closing brace
        NestedStatement,  //!< where a statement begins a line, or at a closing brace
        BlockLine         //!< where a command or a declaration begins a line, or at a closing brace
    };

    /** One level of nesting as long as it lives; deeper than deepestNesting is an error. */
    class Level {
     public:
        explicit Level(FTokenStream& tokens);
        ~Level() { --mTokens.mNesting; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

     private:
        FTokenStream& mTokens;
    };

    /** What to say of a text with more. */
    static QString tooMany();

    explicit FTokenStream(const FLexer& lexer) : mLexer(lexer), mCurrent(mLexer.next()) {}

    const FToken& current() const { return mCurrent; }
    FToken::Kind kind() const { return mError ? FToken::Kind::BadCharacter : mCurrent.kind; }
    bool isAt(FToken::Kind kind) const { return !mError && mCurrent.kind == kind; }

    /** Whether the present token and those after it are of these kinds. */
    bool isAt(std::initializer_list<FToken::Kind> kinds) const;
    bool isAtDeclaration() const;

    void advance();
    bool accept(FToken::Kind kind);

    /** Passes over a token of this kind, or fails with `expected` in the message. */
    void expect(FToken::Kind kind, const char* expected);

    void failExpected(const QString& expected);
    void fail(const FPlace& place, const QString& message);
    /** Remembers a warning, of which only the first ones are kept. */
    void warn(const FPlace& place, const QString& message);
    std::vector<FSyntaxError> takeWarnings() { return std::move(mWarnings); }
    bool hasFailed() const { return mError.has_value(); }

    /** The error; the stream goes on after that. */
    FSyntaxError takeError();

    /** Goes on with the next line. */
    void skipLine();

    /**
     * True if the error is in text that was parsed once before recovery went back. It is a consequence of an earlier
     * error then.
     */
    bool isFollowUp() const { return mCurrent.begin <= mReadBefore; }

    /**
     * After takeError: passes over the rest of the statement that begins with `begin`, its block included.
     * A quote, bracket or brace missing or too much in it costs nothing of what follows it.
     */
    void skipStatement(const FToken& begin, FSkipTo to);

 private:
    QString hint(const QString& expected) const;
    void beginSkipping(const FToken& begin);
    bool canGoOn(const FToken& begin, FSkipTo to, bool isInBraces) const;

    FLexer mLexer;
    FToken mCurrent;
    FToken mPrevious;
    FToken mLongText;  //!< the last text over several lines that ends where another seems to begin
    std::optional<FSyntaxError> mError;
    std::vector<FSyntaxError> mWarnings;
    int mNesting = 0;
    int mTokenCount = 0;
    int mReadBefore = -1;  //!< position of the last error from which reading went back by whole lines
};
