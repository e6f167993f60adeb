#include "host/gui/window/FRecoveryQuestion.h"

#include "host/core/FIO.h"
#include "host/core/FMerixCtrl.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/script/FAutosave.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace {

constexpr int shownLines = 6;
constexpr int shownLength = 80;

QList<QByteArray> linesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
}

/** The lines of one text that the other doesn't have, in order. */
QStringList linesOnlyIn(const QList<QByteArray>& lines, const QList<QByteArray>& other) {
    QHash<QByteArray, int> counts;
    for (const QByteArray& line : other) {
        ++counts[line];
    }
    QStringList only;
    for (const QByteArray& line : lines) {
        if (--counts[line] < 0) {
            only.append(QString::fromUtf8(line).trimmed());
        }
    }
    return only;
}

QString shown(const QString& title, const QStringList& lines) {
    if (lines.isEmpty()) {
        return {};
    }
    QString text = QStringLiteral("\n\n%1 (%2):").arg(title).arg(lines.size());
    for (const QString& line : lines.mid(0, shownLines)) {
        text += QLatin1String("\n    ") + (line.size() > shownLength ? line.left(shownLength) + QChar(0x2026) : line);
    }
    return lines.size() > shownLines ? text + QLatin1String("\n    ") + QChar(0x2026) : text;
}

}  // namespace

FRecoveryQuestion::FRecoveryQuestion(const QString& project) : mProject(project) {}

QString FRecoveryQuestion::text() const {
    const QString autosave = FAutosave::pathOf(mProject);
    const QList<QByteArray> saved = linesOf(mProject);
    const QList<QByteArray> kept = linesOf(autosave);
    return QStringLiteral("There is unsaved work on %1 from %2; the project was saved %3.")
               .arg(QFileInfo(mProject).fileName(), FProjectFiles::ageOf(QFileInfo(autosave).lastModified()),
                    FProjectFiles::ageOf(QFileInfo(mProject).lastModified())) +
           shown(QStringLiteral("Lines only in the unsaved work"), linesOnlyIn(kept, saved)) +
           shown(QStringLiteral("Lines only in the saved project"), linesOnlyIn(saved, kept));
}

FRecoveryQuestion::Answer FRecoveryQuestion::ask() const {
    constexpr int cancel = 2;
    const int answer =
        FIO::question(nullptr, FMerixCtrl::getApplicationTitle(), text(), QStringLiteral("Recover the unsaved work"),
                      QStringLiteral("Open as saved"), QStringLiteral("Cancel"), 0, cancel);
    return answer == 0 ? Answer::Recover : answer == 1 ? Answer::OpenSaved : Answer::Cancel;
}
