#pragma once

#include <QString>

struct FProcessOutcome;
struct FProcessSetup;

/** Messages to the user about external programs. Set-ups passed here have an absolute working folder. */
namespace FProcessText {

/** A signal in words and by name, such as "killed (SIGKILL)"; "signal 40" for one without a name. */
QString signalName(int signal);

/** How a program ended, in which folder, and what to do. Empty for a success. */
QString ending(const FProcessSetup& setup, const FProcessOutcome& outcome);

/** Why a program that was found could not be started; step and error number as the supervisor reports them. */
QString startFailure(const FProcessSetup& setup, const QString& program, const QString& step, int errorNumber);

/** The supervisor's file is missing or not executable. */
QString supervisorMissing(const QString& program, const QString& supervisor);

/** Why the system could not start the supervisor. */
QString supervisorFailure(const QString& program, const QString& reason);

/** The supervisor of a running program ended without a report. */
QString supervisorLost(const QString& program);

/** Some processes of the program could not be killed. */
QString remaining(const QString& program, int count);

/** Processes that the program had left running when it ended were terminated. */
QString terminated(const QString& program, int count);

}  // namespace FProcessText
