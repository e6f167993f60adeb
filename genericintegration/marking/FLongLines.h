#pragma once

#include <QString>

#include <vector>

/**
 * The lines of a text that are too long for a widget, which lays out a line as a whole whenever it changes or is
 * painted. They are shown in pieces. Positions are those of QTextDocument, which counts each line end as one: of the
 * document of the text itself, and of the shown one.
 */
class FLongLines {
 public:
    /** Longest line that a widget gets, in UTF-16 units. */
    static constexpr int longest = 100'000;
    /** Longest piece of a line that was cut; one more if a surrogate pair would be cut. */
    static constexpr int piece = 1000;

    /** Number, from 1, of the first line that is longer than a limit; 0 if there is none. */
    static int first(const QString& text, int limit);

    /** No long lines. */
    FLongLines() = default;
    explicit FLongLines(const QString& text);

    bool areThere() const { return !mCuts.empty(); }
    /** The text with its long lines cut. */
    QString cut(const QString& text) const;
    /** The shown position of a position of the text. */
    int shownAt(int position) const;
    /** The position in the text of a shown position; that of a cut is the end of the piece. */
    int positionOf(int shown) const;
    /** Number, from 1, of the line whose first piece a shown line is, which counts from 0; 0 for its other pieces. */
    int numberOf(int shownLine) const;

 private:
    /** Where a piece that isn't the first of its line starts. */
    struct Cut {
        int offset;    //!< in the text
        int position;  //!< in its document
        int line;      //!< from 0
    };

    static bool hasLonger(const QString& text, int limit);
    template <class Condition>
    int cutsBefore(const Condition& condition) const;

    std::vector<Cut> mCuts;
};
