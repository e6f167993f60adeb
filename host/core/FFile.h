#pragma once

#include "host/core/FExport.h"

#include <QIODevice>
#include <QString>

class QFile;

/** Files that users name. */
class MERIX_EXPORT FFile {
 public:
    /**
     * Replaces `$NAME`, `${NAME}` and `%NAME%` by the values of environment variables, and a leading `~` by the user's
     * home folder. References to variables that don't exist stay unchanged, as does `~` without `$HOME`. Values are not
     * expanded again.
     */
    static QString resolveEnv(const QString& name);

    /**
     * Opens an ordinary file for reading. Returns the reason if that fails, else an empty text. Refuses other files: a
     * named pipe would wait for its writer, and a device may have no end.
     */
    static QString openOrdinary(QFile& file, QIODevice::OpenMode mode = QIODevice::ReadOnly);

    /**
     * Reads a whole ordinary file as text, in UTF-8 or as its byte order mark says. Returns the reason if that fails,
     * also if the file has more than `longest` bytes, else an empty text.
     */
    static QString readText(QFile& file, qint64 longest, QString& text);
    /** The same for the bytes of a file that is open. */
    static QString readBytes(QFile& file, qint64 longest, QByteArray& bytes);
    /** The next bytes of an open device, up to `most`. Takes only as much memory as there are bytes. */
    static QByteArray readAtMost(QIODevice& device, qint64 most);

    /** The absolute path of a file. If the path leads to it through links, the path of the file itself. */
    static QString realPath(const QString& path);
};
