#include "merix/FTableOutput.h"

#include "host/core/FNumberText.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FValueListing.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

QString toLines(const FTableData& table) {
    QString lines;
    for (int row = 0; row < table.getRowCount(); ++row) {
        const FNumberOrigin& origin = table.getOrigin(row);
        const QString value = origin.hasText() ? origin.text : numberText(table.getElementAt(row, 0));
        lines += table.getRowName(row) + QStringLiteral(" = ") + value + QLatin1Char('\n');
    }
    return lines;
}

}  // namespace

QString FTableOutput::of(FResultsGeneric& results, Form form) {
    results.prepareResults();
    FValueListing listing;
    QString lines;
    for (const FExpr<FTableData>& table : results.listedTables()) {
        results.noteRequest(*table.ptr());
        listing.add(*table.ptr());
        lines += toLines(*table.ptr());
    }
    switch (form) {
        case Form::Csv:
            return listing.toCsv();
        case Form::Json:
            return QString::fromUtf8(QJsonDocument(listing.toJson()).toJson());
        case Form::Explained:
            return listing.toText();
        default:
            return lines;
    }
}
