#pragma once

#include "host/core/FExport.h"

#include <QString>

class QFile;

/** Prevents writing into a folder from changing files elsewhere. */
class MERIX_EXPORT FSafePath {
 public:
    /** Whether a file name, appended to a folder, leads out of it. A backslash counts as a slash. */
    static bool leadsOut(const QString& fileName);
    /** The same, also through links among the folders of the name. The last part of the name isn't followed. */
    static bool leadsOut(const QString& folder, const QString& fileName);
    /** Whether a file in a folder is a link to something outside it. */
    static bool isLinkOut(const QString& folder, const QString& fileName);
    /**
     * Removes a link, or a file with several names (hard links): writing to it would change a file elsewhere. Folders
     * and other files stay. False if it can't be removed.
     */
    static bool removeLink(const QString& path);
    /**
     * Opens a file in an existing folder for writing, empty and unbuffered, after `removeLink`. False if that fails.
     */
    static bool openForWriting(QFile& file);
    /**
     * Puts a file of this program in place in one step, and creates its folder. Unlike FSavedFile, it doesn't wait for
     * the disk, so it protects from a crash of the program but not from a power failure. A link is replaced. Returns
     * the reason of a failure; the old file is then unchanged.
     */
    static QString replace(const QString& path, const QByteArray& bytes);
};
