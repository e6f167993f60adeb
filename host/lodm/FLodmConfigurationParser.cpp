#include "host/lodm/FLodmConfigurationParser.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FString.h"
#include "host/core/FTextDecoder.h"
#include "host/lodm/FTecplotText.h"
#include "host/run/FTableData.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestFile = 512 << 20;

QVector<double> numbersOf(const QStringList& words) {
    QVector<double> numbers;
    for (const QString& word : words) {
        bool isNumber = false;
        const double number = word.toDouble(&isNumber);
        numbers.append(isNumber ? number : std::nan(""));
    }
    return numbers;
}

QString suffix(int counter) {
    return (counter < 10 ? QStringLiteral("_0") : QStringLiteral("_")) + QString::number(counter);
}

void report(const QString& path, const QString& reason, const QString& advice) {
    FLogMsg::warning(QStringLiteral("FLodmConfigurationParser"),
                     QStringLiteral("can't import \"%1\": %2").arg(path, reason), advice);
}

}  // namespace

FLodmConfigurationParser::Make FLodmConfigurationParser::makerOf(const QString& type) {
    if (type == QLatin1String("text")) {
        return &FLodmConfigurationParser::makeText;
    }
    if (type == QLatin1String("table")) {
        return &FLodmConfigurationParser::makeTable;
    }
    return type == QLatin1String("tecplot") ? &FLodmConfigurationParser::makeZones : nullptr;
}

bool FLodmConfigurationParser::knowsType(const QString& type) {
    return makerOf(type) != nullptr;
}

QString FLodmConfigurationParser::knownTypes() {
    return QStringLiteral("known are \"text\", \"table\" and \"tecplot\"");
}

QString FLodmConfigurationParser::makeText(const QString& text, const QString& name) {
    mObjects.insert(name, FExpr<FObject>(new FString(text)));
    return {};
}

QString FLodmConfigurationParser::makeTable(const QString& text, const QString& name) {
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    auto* table = new FTableData(name);
    mObjects.insert(name, FExpr<FObject>(table));
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
    return {};
}

QString FLodmConfigurationParser::makeZones(const QString& text, const QString& name) {
    const FTecplotText read = FTecplotText::read(text);
    if (!read.fault.isEmpty()) {
        return QStringLiteral("line %1: %2").arg(QString::number(read.faultLine), read.fault);
    }
    QHash<QString, int> counters;
    for (const FTecplotZone& zone : read.zones) {
        const QString title = zone.title.isEmpty() ? QString::number(mZones.size() + 1) : zone.title;
        const QString wanted = name + QLatin1Char('|') + title;
        QString free = wanted;
        while (mObjects.contains(free)) {
            free = wanted + suffix(++counters[wanted]);
        }
        auto* table = new FTableData(free);
        table->setAllHorizontalHeaders(read.variables);
        table->setData(zone.rows);
        mZones.append(FExpr<FTableData>(table));
        mObjects.insert(free, FExpr<FObject>(table));
    }
    return {};
}

bool FLodmConfigurationParser::doImport(const QString& type, const QString& path, const QString& name) {
    mObjects.clear();
    mZones.clear();
    const Make make = makerOf(type);
    if (!make) {
        report(path, QStringLiteral("the import type \"%1\" isn't known").arg(type), knownTypes());
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
    if (const QString fault = (this->*make)(FTextDecoder::decode(bytes), name); !fault.isEmpty()) {
        report(file.fileName(), fault, QStringLiteral("nothing is imported"));
    }
    return true;
}
