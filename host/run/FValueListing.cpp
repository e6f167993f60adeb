#include "host/run/FValueListing.h"

#include "host/core/FNumberText.h"
#include "host/run/FComputationResults.h"
#include "host/run/FCsv.h"
#include "host/run/FTableData.h"
#include "host/run/FValueRemark.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>

struct FValueListing::FRow {
    QString name;
    double number;
    QString file;
    FNumberOrigin origin;
    QString state;  //!< of the run that the number is from
    bool isOfEarlierSetUp = false;

    QString place() const {
        return origin.line < 0 ? file
               : origin.column < 0
                   ? QStringLiteral("%1:%2").arg(file, QString::number(origin.line))
                   : QStringLiteral("%1:%2:%3").arg(file, QString::number(origin.line), QString::number(origin.column));
    }
    QStringList flags() const {
        QStringList names = namesOf(origin.flags);
        if (origin.hasText()) {
            names.append(QStringLiteral("text"));
        }
        if (origin.rows && origin.rows->count > 0) {
            names.append(QStringLiteral("mean of %1 rows").arg(origin.rows->count));
        }
        if (isOfEarlierSetUp) {
            names.append(QStringLiteral("earlier set-up"));
        }
        return names;
    }
    QStringList fields() const {
        return {name, numberText(number), place(), origin.text, flags().join(QStringLiteral(", "))};
    }
};

namespace {

QStringList header() {
    return {QStringLiteral("name"), QStringLiteral("value"), QStringLiteral("place"), QStringLiteral("text"),
            QStringLiteral("flags")};
}

QString aligned(const std::vector<QStringList>& lines) {
    std::vector<int> widths;
    for (const QStringList& line : lines) {
        widths.resize(static_cast<size_t>(line.size()), 0);
        for (int i = 0; i < line.size(); ++i) {
            widths[static_cast<size_t>(i)] = std::max(widths[static_cast<size_t>(i)], line[i].size());
        }
    }
    QString text;
    for (const QStringList& line : lines) {
        QString row;
        for (int i = 0; i < line.size(); ++i) {
            row += line[i].leftJustified(widths[static_cast<size_t>(i)] + 2);
        }
        while (row.endsWith(QLatin1Char(' '))) {
            row.chop(1);
        }
        text += row + QLatin1Char('\n');
    }
    return text;
}

// A text between separators may contain anything.
QString onOneLine(QString text) {
    constexpr int longest = 60;
    if (text.size() > longest) {
        text = text.left(longest - 3) + QStringLiteral("...");
    }
    return text.replace(QLatin1Char('\t'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
}

}  // namespace

std::vector<FValueListing::FRow> FValueListing::rows() const {
    std::vector<FRow> rows;
    for (const FTableData* table : mTables) {
        const auto* results = dynamic_cast<const FComputationResults*>(table->getOwner());
        const QString state = results ? results->getStateText() : QString();
        const bool isOfEarlierSetUp = results && !results->getSetUpChanges().isEmpty();
        for (int row = 0; row < table->getRowCount(); ++row) {
            rows.push_back({table->getRowName(row), table->getElementAt(row, 0), table->getName(),
                            table->getOrigin(row), state, isOfEarlierSetUp});
        }
    }
    return rows;
}

QString FValueListing::toText() const {
    std::vector<QStringList> lines{header()};
    for (const FRow& row : rows()) {
        QStringList fields = row.fields();
        fields[3] = onOneLine(fields[3]);
        lines.push_back(fields);
    }
    return aligned(lines);
}

QString FValueListing::toCsv() const {
    QString text = FCsv::line(header());
    for (const FRow& row : rows()) {
        text += FCsv::line(row.fields());
    }
    return text;
}

QJsonArray FValueListing::toJson() const {
    QJsonArray values;
    for (const FRow& row : rows()) {
        const QString reason = FValueRemark::text(row.origin, row.number);
        const auto orNull = [](qint64 number) { return number < 0 ? QJsonValue() : QJsonValue(number); };
        values.append(
            QJsonObject{{QStringLiteral("name"), row.name},
                        {QStringLiteral("value"), std::isfinite(row.number) ? QJsonValue(row.number) : QJsonValue()},
                        {QStringLiteral("file"), row.file},
                        {QStringLiteral("line"), orNull(row.origin.line)},
                        {QStringLiteral("column"), orNull(row.origin.column)},
                        {QStringLiteral("text"), row.origin.text},
                        {QStringLiteral("flags"), QJsonArray::fromStringList(row.flags())},
                        {QStringLiteral("reason"), reason},
                        {QStringLiteral("state"), row.state}});
    }
    return values;
}
