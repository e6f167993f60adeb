#include "host/script/FFailedOutcomes.h"

#include <QHash>

namespace {

QHash<QString, int>& counts() {
    static QHash<QString, int> all;
    return all;
}

}  // namespace

void FFailedOutcomes::add(const QString& command) {
    ++counts()[command];
}

int FFailedOutcomes::count(const QString& command) {
    return counts().value(command);
}
