#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <functional>

/** Messages of the program to its user. */
class MERIX_EXPORT FLogMsg {
 public:
    enum class Kind { Info, Warning, Error };
    enum class Stream { StandardOutput, StandardError };

    Kind kind;
    QString source;       //!< the name of the object concerned, or of the class or command that reports it
    QString message;      //!< what happened, to which thing; a sentence without its final full stop
    QString consequence;  //!< what follows or what to do; a sentence with a capital letter, without its full stop
    Stream stream;        //!< the channel that it was sent to
    QString place;        //!< of the text that it is about, as file:line:column or file:line; empty if there is none
    bool isForScripts = false;  //!< whether the consequence concerns only scripts, so that windows leave it out

    /**
     * "error|warning|note: PLACE: what. remedy". PLACE is the place, or else the source; with a place, the source
     * follows it unless the message names it.
     */
    QString toLine() const;

    static void info(const QString& source, const QString& message, const QString& consequence,
                     Stream stream = Stream::StandardOutput);
    static void warning(const QString& source, const QString& message, const QString& consequence = QString(),
                        const QString& place = QString());
    /** A warning that a command gives script NULL for its result. */
    static void noResult(const QString& source, const QString& message, const QString& place);
    static void error(const QString& source, const QString& message, const QString& consequence = QString(),
                      Stream stream = Stream::StandardError);

    /** Prints the message and reports it on FChanges. */
    void send() const;

    /**
     * Ends the last line on the standard error, which stays open to count its repeats. Whoever writes something else to
     * the terminal, ends a statement or starts a program calls it first.
     */
    static void endLine();

    /**
     * In strict mode each warning is an error, and is counted: whoever executes something and must not accept warnings
     * compares the count before and after.
     */
    static void setStrict(bool strict);
    static bool isStrict();
    /** The warnings that strict mode has turned into errors since the program started. */
    static int getStrictErrors();

    using Sink = std::function<void(const FLogMsg&)>;
    /** Where messages are printed; by default the standard error, where a message and its direct repeats take one line.
     * Returns the sink before. */
    static Sink setSink(Sink sink);
};
