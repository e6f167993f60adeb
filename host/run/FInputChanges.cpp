#include "host/run/FInputChanges.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int mostEntries = 5;
constexpr int longestValue = 60;

QString shortened(const QString& value) {
    const QString line = value.simplified();
    return line.size() <= longestValue ? line : line.left(longestValue) + QStringLiteral("…");
}

}  // namespace

void FInputChanges::take(const QMap<QString, QString>& values) {
    QStringList changed;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const auto before = mValues.constFind(value.key());
        if (before == mValues.constEnd() || before.value() != value.value()) {
            changed.append(value.key() + QStringLiteral(" = ") + shortened(value.value()));
        }
    }
    const int more = std::max(0, static_cast<int>(changed.size()) - mostEntries);
    mText = mIsFirst ? QString() : QStringList(changed.mid(0, mostEntries)).join(QStringLiteral(", "));
    if (more > 0 && !mIsFirst) {
        mText += QStringLiteral(" and %1 more").arg(more);
    }
    mValues = values;
    mIsFirst = false;
}
