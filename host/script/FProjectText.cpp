#include "host/script/FProjectText.h"

#include "host/core/FFile.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FTextDecoder.h"
#include "host/script/FSavedOrder.h"
#include "host/script/FSavedTextReader.h"
#include "host/script/FScriptParser.h"
#include "host/script/FTokenStream.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

const char* const header = "// merix project, format ";
const char* const noteOfDamage = "// unsaved work on a file with content that couldn't be read\n";

bool isRestoring = false;

QString tooLarge(qint64 size) {
    const QLocale format = QLocale::c();
    return QStringLiteral("it has %1, and a project can't have more than %2")
        .arg(format.formattedDataSize(size), format.formattedDataSize(FProjectText::largestFile));
}

/** A first line that was meant to be the header. */
bool isLikeHeader(const QString& line) {
    static const QRegularExpression words(QStringLiteral("merix|project|format"));
    return line.startsWith(QLatin1String("//")) && words.match(line).hasMatch();
}

bool refuse(const QString& path, const QString& reason, const QString& advice) {
    FLogMsg::error(path, reason, advice);
    return false;
}

}  // namespace

QByteArray FProjectText::write(QString* fault) {
    QString text = QLatin1String(header) + QString::number(version) + QLatin1Char('\n');
    FSavedOrder order;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        if (object->isInProject() && !object->isDefault()) {
            order.add(*object);
        }
    }
    for (const QString& block : order.getTexts()) {
        text += block;
    }
    const QByteArray bytes = text.toUtf8();
    if (fault) {
        *fault = bytes.size() > largestFile                          ? tooLarge(bytes.size())
                 : order.getTokenCount() >= FTokenStream::mostTokens ? FTokenStream::tooMany()
                                                                     : QString();
    }
    return bytes;
}

bool FProjectText::load(const QString& path) {
    mPath = path;
    QFile file(path);
    if (const QString fault = FFile::openOrdinary(file); !fault.isEmpty()) {
        return refuse(path, QStringLiteral("can't read the project: ") + fault,
                      QStringLiteral("Give the name of a project, such as \"wing.mrx\"; the present one is unchanged"));
    }
    const QByteArray bytes = file.size() > largestFile ? QByteArray() : FFile::readAtMost(file, largestFile + 1);
    if (std::max(file.size(), qint64{bytes.size()}) > largestFile) {
        return refuse(path, tooLarge(file.size()), QStringLiteral("The present project is unchanged"));
    }
    if (const int line = FTextDecoder::firstInvalidLine(bytes)) {
        ++mWarnings;
        FLogMsg::error(path + QLatin1Char(':') + QString::number(line),
                       QStringLiteral("bytes that aren't UTF-8 stand in this line; they are read as \"\uFFFD\""));
    }
    mText = FTextDecoder::decode(bytes);
    return checkHeader();
}

bool FProjectText::checkHeader() {
    const QString line = mText.left(mText.indexOf(QLatin1Char('\n'))).left(200);
    static const QRegularExpression pattern(QStringLiteral("^// merix project, format (\\d{1,9})\\s*$"));
    const QRegularExpressionMatch match = pattern.match(line);
    if (!match.hasMatch() && !isLikeHeader(line)) {
        return refuse(mPath,
                      QStringLiteral("it is no project: its first line is \"%1\", not \"%2%3\"")
                          .arg(line.trimmed().left(60), QLatin1String(header), QString::number(version)),
                      QStringLiteral("If it is one that lost its first line, give it that line; nothing was changed"));
    }
    if (!match.hasMatch()) {
        ++mWarnings;
        FLogMsg::error(mPath + QStringLiteral(":1"),
                       QStringLiteral("a project begins with the line \"%1%2\", but this file begins with \"%3\"")
                           .arg(QLatin1String(header))
                           .arg(version)
                           .arg(line.trimmed().left(60)),
                       QStringLiteral("Read as a project of that format"));
        return true;
    }
    const int found = match.captured(1).toInt();
    return found <= version ||
           refuse(mPath,
                  QStringLiteral("the project was written in format %1; this program reads formats up to %2")
                      .arg(found)
                      .arg(version),
                  QStringLiteral("Open it with the program that saved it, or a newer one; nothing was changed"));
}

int FProjectText::restore() const {
    // No step: nothing can be undone beyond the opening of a project.
    const FHistoryBlocker blocker;
    const FProjectLoading loading;
    const QScopedValueRollback<bool> restoring(isRestoring, true);
    FScriptNames names;
    return mWarnings + FSavedTextReader::read(mText, mPath, {true, false}, names);
}

bool FProjectText::isBeingRestored() {
    return isRestoring;
}

QByteArray FProjectText::withNoteOfDamage(const QByteArray& text) {
    QByteArray noted = text;
    return noted.insert(noted.indexOf('\n') + 1, noteOfDamage);
}

bool FProjectText::hasNoteOfDamage() const {
    return mText.midRef(mText.indexOf(QLatin1Char('\n')) + 1).startsWith(QLatin1String(noteOfDamage));
}
