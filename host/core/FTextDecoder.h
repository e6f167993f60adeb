#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

/** Bytes of a text file as text: UTF-8, unless a byte order mark says UTF-16 or UTF-32. Line ends stay as they are. */
class MERIX_EXPORT FTextDecoder {
 public:
    /** Never fails: what can't be read becomes the replacement character U+FFFD. */
    static QString decode(const QByteArray& bytes);
    /** The line, from 1, of the first bytes that aren't valid; 0 if all are. */
    static int firstInvalidLine(const QByteArray& bytes);
};
