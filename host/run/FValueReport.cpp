#include "host/run/FValueReport.h"

#include "host/core/FLogMsg.h"
#include "host/core/FNumberText.h"
#include "host/run/FTableData.h"
#include "host/run/FValueRemark.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <cmath>

namespace FValueReport {
namespace {

constexpr int mostOfAKind = 3;
constexpr int mostListed = 5;

QString placeIn(const FTableData& table, const FNumberOrigin& origin) {
    return origin.lineToShow() > 0 ? QStringLiteral("%1:%2").arg(table.getName(), QString::number(origin.lineToShow()))
                                   : table.getName();
}

/** The values of a table that have flags, and for the message the first few of each kind. */
struct FGroup {
    int count = 0;
    struct FText {
        QString what;
        QString place;
    };
    QList<FText> texts{};
    QHash<QString, int> kinds{};  //!< number of values by what can be done about them
    FNumberFlags flags{};         //!< of the first value
    QString place{};

    void add(const FTableData& table, int row, const FNumberOrigin& origin) {
        if (++count == 1) {
            flags = origin.flags;
            place = placeIn(table, origin);
        }
        const double number = table.getElementAt(row, 0);
        FNumberOrigin own = origin;
        own.flags &= ~fileFlags;
        own.oddity = origin.flags.testFlag(FNumberFlag::SeparatorInvalid) ? QString() : origin.oddity;
        if (++kinds[FValueRemark::remedy(own.flags)] > mostOfAKind || texts.size() >= mostListed) {
            return;
        }
        const QString value = std::isnan(number) ? QStringLiteral(":") : QLatin1Char(' ') + numberText(number);
        texts.append({QStringLiteral("\"%1\"%2 %3").arg(table.getRowName(row), value, FValueRemark::text(own, number)),
                      placeIn(table, origin)});
    }
    /** Gives the places that differ from the one that the message begins with. */
    QString text(const QString& kind, const QString& messagePlace) const {
        QStringList parts;
        for (const FText& text : texts) {
            parts.append(text.place == messagePlace ? text.what
                                                    : QStringLiteral("%1 in %2").arg(text.what, text.place));
        }
        const int others = count - texts.size();
        const QString rest =
            others > 0 ? QStringLiteral("; and %1 more, which getListing() of the table shows").arg(others) : QString();
        return QStringLiteral("%1 %2: %3%4").arg(QString::number(count), kind, parts.join(QStringLiteral("; ")), rest);
    }
};

void send(bool isNote, const QString& source, const QString& message, const QString& remedy, const QString& place) {
    if (isNote) {
        FLogMsg::info(source, place + QStringLiteral(": ") + message, remedy);
    } else {
        FLogMsg::warning(source, message, remedy, place);
    }
}

bool isNewSeparator(const FTableData& table, const FNumberOrigin& origin) {
    static QSet<QString> reported;
    const QString key = table.getName() + QLatin1Char('\n') + origin.oddity;
    const bool isNew = !reported.contains(key);
    reported.insert(key);
    return isNew;
}

// All values have these flags, so that one of them is enough.
void logFile(const FTableData& table, const QString& source, bool isNote, const FNumberOrigin& origin) {
    for (const FNumberFlag flag :
         {FNumberFlag::SeparatorInvalid, FNumberFlag::ZeroBytes, FNumberFlag::OnlyCarriageReturns}) {
        if (origin.flags.testFlag(flag) && (flag != FNumberFlag::SeparatorInvalid || isNewSeparator(table, origin))) {
            FNumberOrigin one = origin;
            one.flags = flag;
            send(isNote, source, FValueRemark::text(one, 0), FValueRemark::remedy(flag), table.getName());
        }
    }
}

}  // namespace

void log(const FTableData& table, const QString& source, bool isNote, FNumberFlags accepted, const QString& changed,
         QString& earlier) {
    FGroup suspicious;
    FGroup missing;
    FNumberOrigin ofFile;
    for (int row = 0; row < table.getRowCount(); ++row) {
        const FNumberOrigin& origin = table.getOrigin(row);
        if (origin.flags & fileFlags) {
            ofFile = origin;
        }
        const bool isMissing = std::isnan(table.getElementAt(row, 0));
        if (origin.flags & ~fileFlags & ~(isMissing ? FNumberFlags() : accepted)) {
            (isMissing ? missing : suspicious).add(table, row, origin);
        }
    }
    const FGroup& first = suspicious.count > 0 ? suspicious : missing;
    QStringList groups;
    if (suspicious.count > 0) {
        groups.append(suspicious.text(QStringLiteral("suspicious"), first.place));
    }
    if (missing.count > 0) {
        groups.append(missing.text(QStringLiteral("without a number"), first.place));
    }
    const QString text = (table.getRowCount() == 1 ? QStringLiteral("1 value: ")
                                                   : QStringLiteral("%1 values: ").arg(table.getRowCount())) +
                         groups.join(QStringLiteral("; "));
    const QString key = first.place + text + QString::number(ofFile.flags) + ofFile.oddity;
    if (key == earlier) {
        return;
    }
    earlier = key;
    logFile(table, source, isNote, ofFile);
    if (!groups.isEmpty()) {
        const QString runs =
            changed.isEmpty() ? QString() : QStringLiteral(". Changed since the run before: ") + changed;
        send(isNote, source, text + runs, FValueRemark::remedy(first.flags & ~fileFlags), first.place);
    }
}

}  // namespace FValueReport
