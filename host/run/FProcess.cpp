#include "host/run/FProcess.h"

#include "host/core/FLogMsg.h"
#include "host/run/FProcessText.h"
#include "host/run/FProgramSearch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <utility>

namespace {

// More than the time after which the supervisor gives up on processes that can't be killed.
constexpr int killMilliseconds = 8000;

// Rounded up, since zero means no limit to the supervisor.
qint64 milliseconds(double seconds) {
    return seconds > 0 ? static_cast<qint64>(std::ceil(std::min(seconds, 1e12) * 1000)) : 0;
}

QString fileOrNull(const QString& file) {
    return file.isEmpty() ? QProcess::nullDevice() : file;
}

QDateTime timeOf(const QString& text) {
    return QDateTime::fromMSecsSinceEpoch(text.toLongLong());
}

// In a series of runs, the first message is enough for the long list.
bool hasSaidFolders(const QString& path) {
    static QString said;
    return std::exchange(said, path) == path;
}

QString supervisorFile() {
    const QString named = qEnvironmentVariable("MERIX_SUPERVISOR");
    return named.isEmpty() ? QCoreApplication::applicationDirPath() + QStringLiteral("/merix-supervisor") : named;
}

}  // namespace

FProcess::FProcess(const FProcessSetup& setup, QObject* parent) : QObject(parent), mSetup(setup) {
    mSetup.workingFolder =
        setup.workingFolder.isEmpty() ? QDir::currentPath() : QDir::current().absoluteFilePath(setup.workingFolder);
    mOutcome.program = setup.program;
    mSupervisor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&mSupervisor, &QProcess::readyReadStandardOutput, this, &FProcess::readReport);
    connect(&mSupervisor, &QProcess::errorOccurred, this, &FProcess::onSupervisorError);
    connect(&mSupervisor, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            &FProcess::onSupervisorFinished);
}

// Otherwise QProcess would kill the supervisor, which could then no longer end the program.
FProcess::~FProcess() {
    mSupervisor.disconnect(this);
    mSupervisor.closeWriteChannel();
    mSupervisor.waitForFinished(
        static_cast<int>(std::min<qint64>(milliseconds(mSetup.grace), 3600'000) + killMilliseconds));
}

void FProcess::start() {
    if (mState != State::Ready) {
        return;
    }
    mState = State::Running;
    FLogMsg::endLine();
    if (prepareEnvironment() && findProgram() && findSupervisor()) {
        mSupervisor.setArguments(supervisorArguments());
        mSupervisor.start();
    }
}

// The supervisor ends the program when the pipe closes.
void FProcess::cancel() {
    if (isRunning()) {
        mSupervisor.closeWriteChannel();
    }
}

bool FProcess::prepareEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& entry : qAsConst(mSetup.environment)) {
        const int sign = entry.indexOf('=');
        if (sign < 1) {
            failToStart(QStringLiteral("The program '%1' was not started: '%2' in its environment is not of the form "
                                       "NAME=value. Correct it.")
                            .arg(mSetup.program, entry));
            return false;
        }
        environment.insert(entry.left(sign), entry.mid(sign + 1));
    }
    mSupervisor.setProcessEnvironment(environment);
    return true;
}

bool FProcess::findProgram() {
    // Without a PATH, the system searches these folders.
    const QString path =
        mSupervisor.processEnvironment().value(QStringLiteral("PATH"), QStringLiteral("/bin:/usr/bin"));
    const FProgramSearch search = FProgramSearch::search(mSetup.program, mSetup.workingFolder, path);
    if (search.isFound()) {
        mOutcome.program = search.file;
    } else {
        failToStart(search.fault(!hasSaidFolders(path)).toSentences());
    }
    return search.isFound();
}

bool FProcess::findSupervisor() {
    const QFileInfo file(supervisorFile());
    mSupervisor.setProgram(file.absoluteFilePath());
    if (file.isFile() && file.isExecutable()) {
        return true;
    }
    failToStart(FProcessText::supervisorMissing(mOutcome.program, file.absoluteFilePath()));
    return false;
}

QStringList FProcess::supervisorArguments() const {
    QStringList result{QString::number(milliseconds(mSetup.timeLimit)),
                       QString::number(milliseconds(mSetup.grace)),
                       mSetup.workingFolder,
                       mSetup.lockFile,
                       fileOrNull(mSetup.standardInputFile),
                       fileOrNull(mSetup.standardOutputFile),
                       fileOrNull(mSetup.standardErrorFile),
                       mOutcome.program};
    return result + mSetup.arguments;
}

void FProcess::failToStart(const QString& message) {
    mOutcome.cause = FProcessOutcome::Cause::ProgramNotStarted;
    mOutcome.message = message;
    conclude();
}

void FProcess::readReport() {
    while (mSupervisor.canReadLine()) {
        takeEvent(QString::fromLatin1(mSupervisor.readLine()).simplified().split(' '));
    }
}

void FProcess::takeEvent(const QStringList& event) {
    const QString& kind = event.first();
    if (kind == QLatin1String("failed") && event.size() == 3) {
        mIsReported = true;
        mOutcome.cause = FProcessOutcome::Cause::ProgramNotStarted;
        mOutcome.message = FProcessText::startFailure(mSetup, mOutcome.program, event[1], event[2].toInt());
    } else if (kind == QLatin1String("started") && event.size() == 3) {
        mOutcome.processId = event[1].toLongLong();
        mOutcome.start = timeOf(event[2]);
        emit started();
    } else if (kind == QLatin1String("ended") && event.size() == 7) {
        mIsReported = true;
        takeEnd(event);
    }
}

void FProcess::takeEnd(const QStringList& event) {
    using Cause = FProcessOutcome::Cause;
    const bool exited = event[2] == QLatin1String("exit");
    const int value = event[3].toInt();
    mOutcome.exitCode = exited ? value : -1;
    mOutcome.signal = exited ? 0 : value;
    mOutcome.end = timeOf(event[4]);
    if (event[1] == QLatin1String("limit")) {
        mOutcome.cause = Cause::TimeLimit;
    } else if (event[1] == QLatin1String("stop")) {
        mOutcome.cause = Cause::Cancelled;
    } else if (!exited) {
        mOutcome.cause = Cause::Signal;
    } else {
        mOutcome.cause = mSetup.exitCodes.contains(value) ? Cause::None : Cause::ExitCode;
    }
    mOutcome.message = FProcessText::ending(mSetup, mOutcome);
    if (const int count = event[5].toInt(); count > 0) {
        mOutcome.message = (mOutcome.message + ' ' + FProcessText::remaining(mOutcome.program, count)).trimmed();
    } else if (const int terminated = event[6].toInt(); terminated > 0) {
        mOutcome.message = (mOutcome.message + ' ' + FProcessText::terminated(mOutcome.program, terminated)).trimmed();
    }
}

void FProcess::onSupervisorError(QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
        failToStart(FProcessText::supervisorFailure(mOutcome.program, mSupervisor.errorString()));
    }
}

void FProcess::onSupervisorFinished() {
    readReport();
    if (!mIsReported) {
        mOutcome.cause = FProcessOutcome::Cause::Signal;
        mOutcome.signal = SIGKILL;
        mOutcome.end = QDateTime::currentDateTime();
        mOutcome.message = FProcessText::supervisorLost(mOutcome.program);
    }
    conclude();
}

// From the event loop, so that a caller can connect after the start and may delete this object in its slot.
void FProcess::conclude() {
    const auto report = [this] {
        mState = State::Finished;
        emit finished(mOutcome);
    };
    QMetaObject::invokeMethod(this, report, Qt::QueuedConnection);
}
