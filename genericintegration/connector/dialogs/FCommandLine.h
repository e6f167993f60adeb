#pragma once

#include <QString>
#include <QStringList>

/** A command as a user types it in a terminal, taken apart without a shell: nothing is expanded. */
struct FCommandLine {
    /**
     * Words are separated by blanks, unless these are between single or double quotes or after a backslash. Between
     * single quotes, a backslash is an ordinary character; between double quotes, it is one unless a quote or a
     * backslash follows. `< file` names the standard input.
     */
    static FCommandLine parse(const QString& command);
    /** A word as it is typed in a command: between quotes if it needs them. */
    static QString quoted(const QString& word);

    QStringList words;
    QString standardInput;  //!< empty for none
    QString fault;          //!< why no program gets this, and what to write instead; empty if it can be used
};
