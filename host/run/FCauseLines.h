#pragma once

#include "host/core/FExport.h"

#include <QList>
#include <QSet>
#include <QString>

/**
 * The lines of a program's output that best show why it failed: lines that look like a cause, then the first and last
 * lines of each file. No line appears twice; lines that differ only in digits count as equal.
 *
 * Any bytes are accepted: invalid UTF-8 and control characters become U+FFFD, all kinds of line ends are recognised,
 * blank lines are left out, long ones are cut. Of large files only the start and the end are searched. Line numbers
 * count line feeds, from 1.
 */
class MERIX_EXPORT FCauseLines {
 public:
    /** Adds the lines of a file. Ignores a file that can't be read. */
    void add(const QString& folder, const QString& file);

    struct Line {
        QString file;
        qint64 number;
        QString text;
    };

    /** For a message, each line as `    FILE:LINE: TEXT`; empty if there are none. */
    QString toText() const;
    /** A line of such a text; without a file if it isn't one. */
    static Line fromText(const QString& line);

 private:
    bool take(QList<Line>& to, const Line& line);
    void takeCauses(const QList<Line>& lines);
    void takeEnds(const QList<Line>& lines);

    QList<Line> mCauses;
    QList<Line> mOthers;
    QSet<QString> mKnown;
};
