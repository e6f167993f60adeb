#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * Texts in XML. XML 1.0 can't contain most control characters and doesn't preserve all line ends. Such a character is
 * written as `\uXXXX`, its UTF-16 unit in four hexadecimal digits. Any other backslash means itself, so paths are
 * written unchanged.
 */
class MERIX_EXPORT FLodmText {
 public:
    static QString toXml(const QString& text);
    static QString fromXml(const QString& text);
};
