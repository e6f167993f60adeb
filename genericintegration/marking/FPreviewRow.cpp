#include "genericintegration/marking/FPreviewRow.h"

#include "host/run/FTableData.h"
#include "host/run/FValueRemark.h"

#include <cmath>

FPreviewRow::FPreviewRow(const FTableData& table, int row)
    : header(table.getRowName(row)), toolTip(QStringLiteral("row index:%1,column index:0").arg(row)) {
    const double number = table.getElementAt(row, 0);
    const QStringList parts = table.getRowTooltip(row).split(u'|', Qt::SkipEmptyParts);
    const bool isText = parts.size() == 2;
    header = header.isEmpty() ? QString::number(row + 1) : header;
    type = parts.value(0);
    canBeParameter = !std::isnan(number);
    isNotANumber = !isText && !canBeParameter;
    value = isText ? parts[1] : canBeParameter ? QString::number(number, 'g', 6) : QStringLiteral("not a number");
    if (!isText) {
        judge(table, row);
    }
}

void FPreviewRow::judge(const FTableData& table, int row) {
    const FNumberOrigin& origin = table.getOrigin(row);
    const QString remedy = FValueRemark::remedy(origin.flags);
    reason = FValueRemark::text(origin, table.getElementAt(row, 0));
    if (!reason.isEmpty() && !remedy.isEmpty()) {
        reason += QStringLiteral(". ") + remedy;
    }
    state = isNotANumber ? State::Missing : origin.flags ? State::Suspicious : State::Found;
}
