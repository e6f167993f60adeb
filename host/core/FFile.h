#pragma once

#include <QString>

/** Names of files as users write them. */
class FFile {
 public:
    /**
     * Puts the values of environment variables in place of `$NAME`, `${NAME}` and `%NAME%`, and the user's home folder
     * in place of a leading `~`. What names no variable stays as it stands. Values aren't expanded in turn.
     */
    static QString resolveEnv(const QString& name);
};
