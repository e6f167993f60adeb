#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

#include <functional>

class QFile;
class QFileDevice;

/**
 * Puts files in place in one step: the bytes are written to a temporary file in the same folder, which then replaces
 * the old file. After a crash there is the old file or the new one. Functions return a reason for the user, or an empty
 * text if all went well; the old file is unchanged after a failure.
 */
class MERIX_EXPORT FSavedFile {
 public:
    using Step = std::function<QString()>;

    /**
     * Writes a file of the user's. A link is followed, and an existing file keeps its permissions.
     * @param beforeReplacing  called when everything is written and the old file is still in place; if it returns a
     *                         reason, the old file stays
     */
    static QString write(const QString& path, const QByteArray& bytes, const Step& beforeReplacing = {});
    /** Writes the rest of an open file, in the same way. */
    static QString copy(QFile& source, const QString& path);
    /**
     * Writes what an open file of FSavingFile holds, which is removed.
     * @param isWritten  whether everything was written to it
     */
    static QString take(QFile& temporary, const QString& path, bool isWritten);
    /**
     * Writes a file of the program's own. It replaces a link, and gets the permissions of the file `original`; without
     * one, only the owner may read it.
     */
    static QString writeBeside(const QString& original, const QString& path, const QByteArray& bytes);
    /** Copies the rest of an open file, in the same way, with its permissions. The owner may always write the copy. */
    static QString keep(QFile& original, const QString& path);
    static QString keep(const QString& original, const QString& path);

    /** Whether a file has exactly these bytes. */
    static bool holds(const QString& path, const QByteArray& bytes);
    /** Why a file doesn't take what is written to it. Some full disks give no error code. */
    static QString reasonOf(const QFileDevice& file);
    /** `path`, or the first of path2, path3 … that doesn't exist, not even as a broken link. */
    static QString freeName(const QString& path);
};
