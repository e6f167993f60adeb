#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * Texts in XML. XML 1.0 can't hold most control characters, and line ends don't all survive it; such a character is
 * written as `\uXXXX`, its UTF-16 unit in four hexadecimal digits. A backslash that isn't the begin of one stands for
 * itself, so that paths can be written as they are.
 */
class MERIX_EXPORT FLodmText {
 public:
    static QString toXml(const QString& text);
    static QString fromXml(const QString& text);
};
