#pragma once

#include <QStringView>

/** Where a QTextDocument ends a line of the text that it is given: at LF, CR, CR LF, U+2029, U+FDD0 and U+FDD1. */
namespace FDocumentLineEnd {

/** Whether a character is a line end or a part of one. */
inline bool isPart(QChar c) {
    const ushort unit = c.unicode();
    return unit <= u'\r' ? unit == u'\n' || unit == u'\r'
                         : unit >= 0x2029 && (unit == 0x2029 || unit == 0xFDD0 || unit == 0xFDD1);
}

/** Length of the line end that starts at a place inside the text; 0 if there is none. */
inline int lengthAt(QStringView text, qsizetype place) {
    if (!isPart(text[place])) {
        return 0;
    }
    return text[place] == u'\r' && place + 1 < text.size() && text[place + 1] == u'\n' ? 2 : 1;
}

/** Length of the line end before a place that isn't the start of the text; 0 if there is none. */
inline int lengthBefore(QStringView text, qsizetype place) {
    if (!isPart(text[place - 1])) {
        return 0;
    }
    return text[place - 1] == u'\n' && place > 1 && text[place - 2] == u'\r' ? 2 : 1;
}

/** The position in the document of a line and column of the text, which count from 1. Takes time linear in the text. */
inline int positionAt(QStringView text, int line, int column) {
    qsizetype place = 0;
    qsizetype joined = 0;  // characters that belong to the line end before them
    for (int passed = 1; passed < line && place < text.size();) {
        const int length = lengthAt(text, place);
        passed += length > 0 ? 1 : 0;
        joined += length > 1 ? 1 : 0;
        place += length > 0 ? length : 1;
    }
    return static_cast<int>(place - joined) + (column > 0 ? column - 1 : 0);
}

}  // namespace FDocumentLineEnd
