#include "host/script/FProjectText.h"

#include "host/core/FLogMsg.h"
#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FTextDecoder.h"
#include "host/script/FSavedOrder.h"
#include "host/script/FSavedTextReader.h"
#include "host/script/FScriptParser.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>

namespace {

const char* const header = "// merix project, format ";

bool refuse(const QString& path, const QString& reason, const QString& advice = QString()) {
    FLogMsg::error(path, reason, advice);
    return false;
}

}  // namespace

QByteArray FProjectText::write() {
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
    return text.toUtf8();
}

bool FProjectText::load(const QString& path) {
    mPath = path;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return refuse(path, QStringLiteral("can't read the project: %1").arg(file.errorString()));
    }
    if (file.size() > largestFile) {
        const QLocale format = QLocale::c();
        return refuse(path, QStringLiteral("the file has %1, which is more than a project can have (%2)")
                                .arg(format.formattedDataSize(file.size()), format.formattedDataSize(largestFile)));
    }
    const QByteArray bytes = file.readAll();
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
    if (!match.hasMatch()) {
        ++mWarnings;
        FLogMsg::error(mPath + QStringLiteral(":1"),
                       QStringLiteral("a project begins with the line \"%1%2\", but here stands \"%3\"")
                           .arg(QLatin1String(header))
                           .arg(version)
                           .arg(line.trimmed().left(60)),
                       QStringLiteral("read as a project of that format"));
        return true;
    }
    const int found = match.captured(1).toInt();
    return found <= version ||
           refuse(mPath,
                  QStringLiteral("the project was written in format %1; this program reads formats up to %2")
                      .arg(found)
                      .arg(version),
                  QStringLiteral("open it with the program that saved it, or a newer one; nothing was changed"));
}

int FProjectText::restore() const {
    const FProjectLoading loading;
    const FScript script = parseScript(mText, mPath, {true, false});
    for (const FSyntaxError& error : script.errors) {
        FLogMsg::error(error.place.toString(mPath), error.message);
    }
    FScriptNames names;
    const int errors = FSavedTextReader(names, mPath).read(script.statements);
    return mWarnings + static_cast<int>(script.errors.size()) + errors;
}
