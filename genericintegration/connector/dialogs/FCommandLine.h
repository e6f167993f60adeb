#pragma once

#include <QString>
#include <QStringList>

/** A command as a user types it in a terminal, taken apart without a shell: nothing is expanded. */
struct FCommandLine {
    /**
     * Words are separated by blanks, unless they are between single or double quotes or behind a backslash. Between
     * single quotes, a backslash is an ordinary character; between double quotes, it is one unless a quote or a
     * backslash follows. `< file` names the standard input.
     */
    static FCommandLine parse(const QString& command);

    QStringList words;
    QString standardInput;  //!< empty for none
    QString fault;          //!< why no program gets this, and what to write instead; empty if it can be used
};
