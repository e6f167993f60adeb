#pragma once

class QRegExp;
class QString;

/**
 * Finds a column of one line of text.
 *
 * With findNumbers, the pattern of a number is loaded into the separator, and the column is the number after as many
 * numbers; otherwise it is the text between as many separators and the next one or the line's end. In line 0, the
 * search begins behind the anchor, if there is one.
 *
 * Start and length tell where the column lies. Returned is the length, or -1 when the line has no such column: start
 * is then -1 if there weren't even as many separators; if just the number was missing, it isn't, and the length is 0.
 */
int findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor, const QString& text,
              int column, bool findNumbers);
