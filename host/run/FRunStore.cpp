#include "host/run/FRunStore.h"

#include "host/core/FFile.h"
#include "host/run/FRunFolder.h"
#include "host/run/FRunLock.h"
#include "host/run/FSafePath.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using Cause = FRunRecord::Cause;
using State = FRunRecord::State;

/** Far more than the values of any set-up need. */
constexpr qint64 largestFile = qint64{64} << 20;

template <class Value>
struct Word {
    Value value;
    const char* text;
};

constexpr Word<Cause> causes[] = {
    {Cause::None, "none"},
    {Cause::InputNotWritten, "input not written"},
    {Cause::ProgramNotStarted, "program not started"},
    {Cause::TimeLimit, "time limit"},
    {Cause::Signal, "signal"},
    {Cause::ExitCode, "exit code"},
    {Cause::TextRule, "text rule"},
    {Cause::FileMissing, "file missing"},
    {Cause::NumberRule, "number rule"},
    {Cause::Cancelled, "cancelled"},
    {Cause::Interrupted, "interrupted"},
};

QString textOf(Cause cause) {
    for (const Word<Cause>& word : causes) {
        if (word.value == cause) {
            return QLatin1String(word.text);
        }
    }
    // A cause without a word of its own is read as a failure, too.
    return QStringLiteral("other");
}

Cause causeOf(const QString& text) {
    for (const Word<Cause>& word : causes) {
        if (text == QLatin1String(word.text)) {
            return word.value;
        }
    }
    return Cause::ExitCode;
}

State stateOf(const QString& text) {
    for (const State state : {State::Finished, State::Failed, State::Cancelled, State::TimedOut}) {
        FRunRecord record;
        record.state = state;
        if (record.stateName() == text) {
            return state;
        }
    }
    return State::Running;
}

QString timeText(const QDateTime& time) {
    return time.toUTC().toString(Qt::ISODateWithMs);
}

QDateTime timeOf(const QJsonValue& text) {
    return QDateTime::fromString(text.toString(), Qt::ISODateWithMs).toLocalTime();
}

QJsonObject toJson(const FRunRecord& record) {
    QJsonObject setUp;
    for (auto row = record.setUp.begin(); row != record.setUp.end(); ++row) {
        setUp.insert(row.key(), row.value());
    }
    return {{"state", record.stateName()},       {"cause", textOf(record.cause)},
            {"exitCode", record.exitCode},       {"signal", record.signal},
            {"computation", record.computation}, {"program", record.program},
            {"message", record.message},         {"start", timeText(record.start)},
            {"end", timeText(record.end)},       {"setUp", setUp}};
}

void fill(FRunRecord& record, const QJsonObject& json) {
    record.state = stateOf(json.value("state").toString());
    record.cause = causeOf(json.value("cause").toString());
    record.exitCode = json.value("exitCode").toInt(-1);
    record.signal = json.value("signal").toInt();
    record.computation = json.value("computation").toString();
    record.program = json.value("program").toString();
    record.message = json.value("message").toString();
    record.start = timeOf(json.value("start"));
    record.end = timeOf(json.value("end"));
    const QJsonObject setUp = json.value("setUp").toObject();
    for (auto row = setUp.begin(); row != setUp.end(); ++row) {
        record.setUp.insert(row.key(), row.value().toString());
    }
}

void markInterrupted(FRunRecord& record) {
    record.state = State::Failed;
    record.cause = Cause::Interrupted;
    record.exitCode = -1;
    record.message = QStringLiteral(
        "The run was interrupted: merix ended before the program did, so its files may be incomplete. Run it again.");
}

}  // namespace

QString FRunStore::write(const FRunRecord& record) const {
    const QString path = file(mEarlier);
    const QString reason =
        FSafePath::replace(path, QJsonDocument(toJson(record)).toJson(QJsonDocument::Compact) + '\n');
    return reason.isEmpty() ? QString()
                            : QStringLiteral(
                                  "The state of the run can't be stored in '%1' (%2). Make room on the disk, or check "
                                  "the permissions.")
                                  .arg(path, reason);
}

std::shared_ptr<const FRunRecord> FRunStore::read(const QString& folder) const {
    QFile stored(file(mEarlier));
    if (!FFile::openOrdinary(stored).isEmpty() || stored.size() > largestFile) {
        return nullptr;
    }
    auto record = std::make_shared<FRunRecord>();
    // A damaged record is that of a run whose end is unknown.
    fill(*record, QJsonDocument::fromJson(stored.readAll()).object());
    record->folder = folder;
    if (!record->isOver() && !FRunLock(FRunFolder::lockFile(mEarlier)).isHeld()) {
        markInterrupted(*record);
    }
    return record;
}
