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
    QString source;       //!< the class or object that reports it
    QString message;      //!< what happened, to which thing, where
    QString consequence;  //!< what follows, or what can be done
    Stream stream;        //!< the channel that it was sent to
    QString place;        //!< of the text that it is about, as file:line:column; empty if there is none

    /** One line: the place, or else the source, the message and the consequence. */
    QString toLine() const;

    static void info(const QString& source, const QString& message, const QString& consequence,
                     Stream stream = Stream::StandardOutput);
    static void warning(const QString& source, const QString& message, const QString& consequence = QString(),
                        const QString& place = QString());
    static void error(const QString& source, const QString& message, const QString& consequence = QString(),
                      Stream stream = Stream::StandardError);

    /** Prints the message and reports it on FChanges. */
    void send() const;

    /**
     * In strict mode each warning is an error, and is counted: whoever executes something and must not accept warnings
     * compares the count before and after.
     */
    static void setStrict(bool strict);
    static bool isStrict();
    /** The warnings that strict mode has turned into errors since the program started. */
    static int getStrictErrors();

    using Sink = std::function<void(const FLogMsg&)>;
    /** Where messages are printed; the standard error as long as nothing is set. Returns the sink before. */
    static Sink setSink(Sink sink);
};
