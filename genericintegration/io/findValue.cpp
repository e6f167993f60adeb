#include "genericintegration/io/findValue.h"

#include <QRegExp>
#include <QString>

#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSeparatorWalk.h"

int findValue(int& start, int& length, QRegExp& separator, int line, const QString& anchor, const QString& text,
              int column, bool findNumbers) {
    start = 0;
    length = 0;
    if (findNumbers) {
        separator = FNumberPattern::pattern();
    }
    if (line == 0 && !anchor.isEmpty()) {
        start = text.indexOf(anchor, 0, Qt::CaseInsensitive) + anchor.length();
    }
    FSeparatorWalk walk(separator, text, start);
    const bool passed = walk.pass(column);
    start = passed ? walk.start() : -1;
    const int match = passed ? walk.next() : -1;
    if (!passed || (findNumbers && match < 0)) {
        return -1;
    }
    if (findNumbers) {
        start = match;
        length = separator.matchedLength();
    } else {
        length = (match < 0 ? text.length() : match) - start;
    }
    return length;
}
