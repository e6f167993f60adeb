#include "host/run/FValueSummary.h"

#include "host/run/FValueRemark.h"

#include <QStringList>

#include <cmath>

FValueSummary::FValueSummary(const QList<FExpr<FTableData>>& tables, FNumberFlags accepted) {
    for (const FExpr<FTableData>& handle : tables) {
        const FTableData& table = *handle.ptr();
        count += table.getRowCount();
        for (int row = 0; row < table.getRowCount(); ++row) {
            const FNumberOrigin& origin = table.getOrigin(row);
            const double number = table.getElementAt(row, 0);
            const bool isMissing = std::isnan(number) && !origin.hasText();
            if (!isMissing && !(origin.flags & ~accepted)) {
                continue;
            }
            ++(isMissing ? missing : suspicious);
            if (first.isEmpty()) {
                const QString reason = FValueRemark::text(origin, number);
                const QString place =
                    origin.lineToShow() > 0 ? QStringLiteral(":%1").arg(origin.lineToShow()) : QString();
                first = QStringLiteral("%1%2 %3 (%4%5)")
                            .arg(table.getRowName(row), isMissing ? QStringLiteral(":") : QString(),
                                 reason.isEmpty() ? QStringLiteral("isn't a number") : reason, table.getName(), place);
            }
        }
    }
}

QString FValueSummary::toText() const {
    QStringList parts{count == 1 ? QStringLiteral("1 value") : QStringLiteral("%1 values").arg(count)};
    if (suspicious > 0) {
        parts.append(QStringLiteral("%1 suspicious").arg(suspicious));
    }
    if (missing > 0) {
        parts.append(QStringLiteral("%1 without a number").arg(missing));
    }
    const QString counts = parts.join(QStringLiteral(", "));
    return first.isEmpty() ? counts : QStringLiteral("%1: %2").arg(counts, first);
}
