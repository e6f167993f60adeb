#pragma once

#include "host/core/FExport.h"

#include <QIODevice>
#include <QString>

class QFile;

/** Files that users name. */
class MERIX_EXPORT FFile {
 public:
    /**
     * Puts the values of environment variables in place of `$NAME`, `${NAME}` and `%NAME%`, and the user's home folder
     * in place of a leading `~`. What names no variable stays as it stands. Values aren't expanded in turn.
     */
    static QString resolveEnv(const QString& name);

    /**
     * Opens an ordinary file for reading. Empty, or why that can't be. Others are refused: a named pipe would wait for
     * its writer, and a device may have no end.
     */
    static QString openOrdinary(QFile& file, QIODevice::OpenMode mode = QIODevice::ReadOnly);
};
