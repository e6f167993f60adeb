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

}  // namespace FDocumentLineEnd
