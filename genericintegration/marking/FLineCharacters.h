#pragma once

#include <QChar>

/** Kinds of characters in a line of an input template. */
namespace FLineCharacters {

/** Part of a word: a letter, digit or mark of any script, or "_". */
inline bool isWordPart(QChar c) {
    return c.isLetterOrNumber() || c.isMark() || c == u'_';
}

/** Part of a name that a tag can be coloured with. */
inline bool isNamePart(QChar c) {
    return isWordPart(c) || c == u'|' || c == u'.' || c == u'/';
}

/** Part of what separates a number from its key. */
inline bool isSeparator(QChar c) {
    switch (c.unicode()) {
        case u':':
        case u'=':
        case u'#':
        case u',':
        case u';':
        case u'[':
        case u']':
        case u'(':
        case u')':
        case u'{':
        case u'}':
        case u'"':
            return true;
        default:
            return c.isSpace();
    }
}

/** Part of a number, as far as one character tells. */
inline bool isNumberPart(QChar c) {
    return c.isDigit() || c == u'-' || c == u'+' || c == u'.' || c == u'e' || c == u'E';
}

}  // namespace FLineCharacters
