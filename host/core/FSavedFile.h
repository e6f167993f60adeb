#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/**
 * Files of the user's, written beside their place and put there in one step: a crash leaves the old or the new.
 * Operations return what went wrong, for the user; empty if nothing did.
 */
class FSavedFile {
 public:
    using Step = std::function<QString()>;

    /**
     * @param beforeReplacing  called when all is written and the old file is still there; a reason that it gives leaves
     *                         that one in its place
     */
    static QString write(const QString& path, const QByteArray& bytes, const Step& beforeReplacing = {});
    /** A file beside another one, for the program's own use: with its permissions, and never through a link. */
    static QString writeBeside(const QString& original, const QString& path, const QByteArray& bytes);
    /** Keeps the bytes of a file, in the same way, under a name. */
    static QString keep(const QString& original, const QString& path);
    /** `path`, or if there is something of that name the first free one of path2, path3 … */
    static QString freeName(const QString& path);
};
