#pragma once

#include <QByteArray>
#include <QString>

/** Files of the user's, written beside their place and put there in one step: a crash leaves the old or the new. */
class FSavedFile {
 public:
    /** Returns what went wrong, for the user; empty if nothing did. */
    static QString write(const QString& path, const QByteArray& bytes);
    /** The same for a copy of a file. */
    static QString copy(const QString& from, const QString& to);
};
