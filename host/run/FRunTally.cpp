#include "host/run/FRunTally.h"

#include <numeric>

namespace {

QMap<FRunRecord::State, int>& counts() {
    static QMap<FRunRecord::State, int> all;
    return all;
}

}  // namespace

void FRunTally::add(FRunRecord::State state) {
    ++counts()[state];
}

QString FRunTally::text() {
    const QMap<FRunRecord::State, int>& all = counts();
    const int runs = std::accumulate(all.begin(), all.end(), 0);
    if (runs < 2 || runs == all.value(FRunRecord::State::Finished)) {
        return {};
    }
    QStringList parts;
    for (auto count = all.begin(); count != all.end(); ++count) {
        FRunRecord record;
        record.state = count.key();
        parts.append(QStringLiteral("%1 %2").arg(QString::number(count.value()), record.stateName()));
    }
    return QStringLiteral("%1 runs: %2").arg(QString::number(runs), parts.join(QStringLiteral(", ")));
}
