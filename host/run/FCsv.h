#pragma once

#include <QString>
#include <QStringList>

/** Comma-separated values as spreadsheets read them. */
namespace FCsv {

/** A line with its line feed. A field with a comma, a quote or a line end is quoted. */
inline QString line(const QStringList& fields) {
    QStringList texts;
    for (const QString& field : fields) {
        const bool isPlain = !field.contains(QLatin1Char(',')) && !field.contains(QLatin1Char('"')) &&
                             !field.contains(QLatin1Char('\n')) && !field.contains(QLatin1Char('\r'));
        texts.append(isPlain ? field
                             : QLatin1Char('"') + QString(field).replace(QLatin1Char('"'), QStringLiteral("\"\"")) +
                                   QLatin1Char('"'));
    }
    return texts.join(QLatin1Char(',')) + QLatin1Char('\n');
}

}  // namespace FCsv
