#include "host/run/FNumberCheck.h"

#include "host/run/FSuccessRules.h"
#include "host/run/FValueRemark.h"
#include "host/script/FCmdManager.h"

#include <algorithm>
#include <cmath>

namespace {

using Tables = QList<FExpr<FTableData>>;

/** Values that a message lists. */
constexpr int mostListed = 5;

QString listed(const QStringList& texts) {
    const QString more =
        texts.size() > mostListed ? QStringLiteral(" and %1 more").arg(texts.size() - mostListed) : QString();
    return QStringList(texts.mid(0, mostListed)).join(QStringLiteral("; ")) + more;
}

QStringList flaggedValues(const Tables& tables, FNumberFlags flags) {
    QStringList values;
    for (const FExpr<FTableData>& table : tables) {
        for (int row = 0; row < table->getRowCount(); ++row) {
            FNumberOrigin origin = table->getOrigin(row);
            origin.flags &= flags;
            if (origin.flags) {
                const QString line =
                    origin.lineToShow() > 0 ? QStringLiteral(":%1").arg(origin.lineToShow()) : QString();
                values.append(QStringLiteral("\"%1\" in %2%3 %4")
                                  .arg(table->getRowName(row), table->getName(), line,
                                       FValueRemark::text(origin, table->getElementAt(row, 0))));
            }
        }
    }
    return values;
}

bool isNan(const FTableData& table, int row) {
    if (table.getOrigin(row).hasText()) {
        return false;
    }
    bool exists = true;
    double number = table.getElementAt(row, 0, &exists);
    bool anyNan = !exists;
    for (int column = 0; exists && !anyNan; number = table.getElementAt(row, ++column, &exists)) {
        anyNan = std::isnan(number);
    }
    return anyNan;
}

QStringList nanValues(const FSuccessRules& rules, const Tables& tables) {
    const bool wantsAll = rules.requiredValues.contains(FSuccessRules::allValues());
    QStringList values;
    for (const FExpr<FTableData>& table : tables) {
        const bool isLeftOut =
            table->getOrigin(0).flags.testFlag(FNumberFlag::FileNotRead) && rules.isOptional(table->getName());
        const bool all = wantsAll && !isLeftOut;
        for (int row = 0; row < table->getRowCount(); ++row) {
            const QString name = table->getRowName(row);
            if ((all || rules.requiredValues.contains(name)) && isNan(*table.ptr(), row)) {
                values.append(QStringLiteral("\"%1\" in %2").arg(name, table->getName()));
            }
        }
    }
    return values;
}

QStringList namesIn(const Tables& tables) {
    QStringList names;
    for (const FExpr<FTableData>& table : tables) {
        names += table->getRowNames();
    }
    return names;
}

QStringList unknownValues(const FSuccessRules& rules, const QStringList& known) {
    QStringList unknown;
    for (const QString& name : rules.requiredValues) {
        if (name != FSuccessRules::allValues() && !known.contains(name)) {
            unknown.append(QLatin1Char('"') + name + QLatin1Char('"') + didYouMean(name, known));
        }
    }
    return unknown;
}

}  // namespace

QStringList FNumberCheck::faults(const FSuccessRules& rules, const QList<FExpr<FTableData>>& tables) {
    QStringList faults;
    const auto add = [&faults](const QString& what, const QStringList& values) {
        if (!values.isEmpty()) {
            faults.append(what.arg(listed(values)));
        }
    };
    if (rules.missingAnchors == FSuccessRules::fails()) {
        add(QStringLiteral("An anchor is missing (setMissingAnchors is \"fail\"): %1."),
            flaggedValues(tables, FNumberFlag::AnchorMissing));
    }
    if (rules.suspiciousNumbers == FSuccessRules::fails()) {
        add(QStringLiteral("A number is suspicious (setSuspiciousNumbers is \"fail\"): %1."),
            flaggedValues(tables, suspiciousFlags));
    }
    if (rules.requiredValues.isEmpty()) {
        return faults;
    }
    const QStringList known = namesIn(tables);
    if (known.isEmpty() && rules.requiredValues.contains(FSuccessRules::allValues())) {
        faults.append(QStringLiteral("No result template has a value (setRequiredValues is [\"*\"])."));
    }
    add(QStringLiteral("No result has the required value: %1."), unknownValues(rules, known));
    add(QStringLiteral("A required value is NaN: %1."), nanValues(rules, tables));
    return faults;
}

FNumberFlags FNumberCheck::accepted(const FSuccessRules& rules) {
    FNumberFlags flags;
    flags.setFlag(FNumberFlag::AnchorMissing, rules.missingAnchors == FSuccessRules::accepts());
    if (rules.suspiciousNumbers == FSuccessRules::accepts()) {
        flags |= suspiciousFlags;
    }
    return flags;
}
