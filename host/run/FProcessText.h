#pragma once

#include <QString>

struct FProcessOutcome;
struct FProcessSetup;

/** The texts about external programs that a user reads. The working folder of a setup is absolute here. */
namespace FProcessText {

/** A signal in words and by name, such as "killed (SIGKILL)"; "signal 40" for one without a name. */
QString signalName(int signal);

/** What ended a started program, in which folder, what can be done. Empty for a success. */
QString ending(const FProcessSetup& setup, const FProcessOutcome& outcome);

/** Why a program that was found could not be started; step and errno are those of the supervisor's report. */
QString startFailure(const FProcessSetup& setup, const QString& program, const QString& step, int errorNumber);

/** That there is no supervisor at that place. */
QString supervisorMissing(const QString& program, const QString& supervisor);

/** Why the system could not start the supervisor. */
QString supervisorFailure(const QString& program, const QString& reason);

/** That the supervisor of a running program has gone without a report. */
QString supervisorLost(const QString& program);

/** That processes of the program are still there although they were killed. */
QString remaining(const QString& program, int count);

}  // namespace FProcessText
