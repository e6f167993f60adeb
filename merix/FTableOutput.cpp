#include "merix/FTableOutput.h"

#include "host/core/FNumberText.h"
#include "host/run/FResultsGeneric.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

/** A value, and where it comes from. */
struct Row {
    QString name;
    double number;
    QString file;
    FNumberOrigin origin;

    /** As file:line:column, as far as it is known. */
    QString place() const {
        QString text = file;
        for (const qint64 part : {origin.line, origin.column}) {
            text += part > 0 ? QLatin1Char(':') + QString::number(part) : QString();
        }
        return text;
    }
};

QString csvField(QString text) {
    const bool isPlain = !text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
                         !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'));
    return isPlain ? text
                   : QLatin1Char('"') + text.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
}

QJsonObject toJson(const Row& row) {
    const QJsonValue number = std::isfinite(row.number) ? QJsonValue(row.number) : QJsonValue();
    return {{QStringLiteral("name"), row.name},
            {QStringLiteral("value"), number},
            {QStringLiteral("file"), row.file},
            {QStringLiteral("place"), row.place()},
            {QStringLiteral("text"), row.origin.text}};
}

QString toLine(const Row& row, FTableOutput::Form form) {
    const QString number = numberText(row.number);
    if (form == FTableOutput::Form::Csv) {
        return csvField(row.name) + QLatin1Char(',') + number + QLatin1Char(',') + csvField(row.place()) +
               QLatin1Char('\n');
    }
    const QString found = row.origin.text.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(row.origin.text);
    const QString from = QStringLiteral("  from ") + row.place() + found;
    return row.name + QStringLiteral(" = ") + number + (form == FTableOutput::Form::Explained ? from : QString()) +
           QLatin1Char('\n');
}

}  // namespace

QString FTableOutput::of(FResultsGeneric& results, Form form) {
    QJsonArray objects;
    QString lines = form == Form::Csv ? QStringLiteral("name,value,place\n") : QString();
    for (const QString& name : results.getTableNames()) {
        const FExpr<FTableData> table = results.getData(name);
        for (int i = 0; i < table->getRowCount(); ++i) {
            const Row row{table->getRowName(i), table->getElementAt(i, 0), name, table->getOrigin(i)};
            if (form == Form::Json) {
                objects.append(toJson(row));
            } else {
                lines += toLine(row, form);
            }
        }
    }
    return form == Form::Json ? QString::fromUtf8(QJsonDocument(objects).toJson()) : lines;
}
