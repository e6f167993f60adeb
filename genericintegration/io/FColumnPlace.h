#pragma once

class FSeparator;
class QString;

/** Where a column of a line is, in UTF-16 units. */
struct FColumnPlace {
    int start;   //!< -1 if there are fewer separators or numbers before the column
    int length;  //!< of an existing column; else 0
    bool exists;

    /**
     * Finds a column from a start in the line. With findNumbers the separator is the pattern of a number, and column n
     * is the match after n others; otherwise it is the text between the n-th separator and the next one or the end of
     * the line.
     */
    static FColumnPlace find(const FSeparator& separator, const QString& line, int start, int column, bool findNumbers);
};
