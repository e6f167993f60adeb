#include "merix/FProblemOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace {

QString counted(int number, const char* what) {
    return QStringLiteral("%1 %2%3").arg(QString::number(number), QLatin1String(what),
                                         number == 1 ? QString() : QStringLiteral("s"));
}

}  // namespace

FProblemOutput::FProblemOutput(const FSetUpCheck::Problems& problems) {
    QSet<QString> known;
    for (const FSetUpProblem& problem : problems) {
        if (!known.contains(problem.key())) {
            known.insert(problem.key());
            mProblems.append(problem);
            mErrors += problem.severity == FSetUpProblem::Severity::Error ? 1 : 0;
            mWarnings += problem.severity == FSetUpProblem::Severity::Warning ? 1 : 0;
        }
    }
}

QString FProblemOutput::toText() const {
    QString text;
    for (const FSetUpProblem& problem : mProblems) {
        text += problem.toMessage().toLine() + QLatin1Char('\n');
    }
    return text + (mProblems.isEmpty() ? QStringLiteral("no problems found\n")
                                       : counted(mErrors, "error") + QStringLiteral(", ") +
                                             counted(mWarnings, "warning") + QLatin1Char('\n'));
}

QString FProblemOutput::toJson() const {
    QJsonArray rows;
    for (const FSetUpProblem& problem : mProblems) {
        rows.append(QJsonObject{{QStringLiteral("severity"), problem.severityName()},
                                {QStringLiteral("object"), problem.object},
                                {QStringLiteral("place"), problem.place},
                                {QStringLiteral("text"), problem.text},
                                {QStringLiteral("remedy"), problem.remedy}});
    }
    const QJsonObject all{{QStringLiteral("problems"), rows},
                          {QStringLiteral("errors"), mErrors},
                          {QStringLiteral("warnings"), mWarnings}};
    return QString::fromUtf8(QJsonDocument(all).toJson());
}
