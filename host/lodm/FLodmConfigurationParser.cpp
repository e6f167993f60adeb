#include "host/lodm/FLodmConfigurationParser.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FString.h"
#include "host/core/FTextDecoder.h"
#include "host/run/FTableData.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestFile = 512 << 20;

using Make = FObject* (*)(const QString& text, const QString& name);

FObject* makeText(const QString& text, const QString& name) {
    Q_UNUSED(name)
    return new FString(text);
}

QVector<double> numbersOf(const QStringList& words) {
    QVector<double> numbers;
    for (const QString& word : words) {
        bool isNumber = false;
        const double number = word.toDouble(&isNumber);
        numbers.append(isNumber ? number : std::nan(""));
    }
    return numbers;
}

FObject* makeTable(const QString& text, const QString& name) {
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    auto* table = new FTableData(name);
    FTableData::Rows rows;
    bool isFirst = true;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QStringList words = line.split(blanks, Qt::SkipEmptyParts);
        const QVector<double> numbers = numbersOf(words);
        if (!std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isnan(number); })) {
            rows.append(numbers);
        } else if (isFirst) {
            table->setAllHorizontalHeaders(words);
        }
        isFirst = isFirst && words.isEmpty();
    }
    table->setData(rows);
    return table;
}

Make makerOf(const QString& type) {
    if (type == QLatin1String("text")) {
        return &makeText;
    }
    return type == QLatin1String("table") ? &makeTable : nullptr;
}

void report(const QString& path, const QString& reason, const QString& advice) {
    FLogMsg::warning(QStringLiteral("FLodmConfigurationParser"),
                     QStringLiteral("can't import \"%1\": %2").arg(path, reason), advice);
}

}  // namespace

bool FLodmConfigurationParser::doImport(const QString& type, const QString& path, const QString& name) {
    mObjects.clear();
    const Make make = makerOf(type);
    if (!make) {
        report(path, QStringLiteral("the import type \"%1\" isn't known").arg(type),
               QStringLiteral("known are \"text\" and \"table\""));
        return true;
    }
    QFile file(QDir(mFolder).filePath(path));
    if (const QString fault = FFile::openOrdinary(file); !fault.isEmpty()) {
        report(file.fileName(), fault, QStringLiteral("nothing is imported"));
        return true;
    }
    const QByteArray bytes = FFile::readAtMost(file, longestFile + 1);
    if (bytes.size() > longestFile) {
        report(file.fileName(), QStringLiteral("it has more than %1 bytes").arg(longestFile),
               QStringLiteral("nothing is imported"));
        return true;
    }
    mObjects.insert(name, FExpr<FObject>(make(FTextDecoder::decode(bytes), name)));
    return true;
}
