#include "genericintegration/marking/FFoldedNames.h"

#include <algorithm>

FFoldedNames::FFoldedNames(const QStringList& names) {
    mNames.reserve(names.size());
    for (const QString& name : names) {
        add(name);
    }
}

// Not QString::toCaseFolded, which also turns one letter into several.
QString FFoldedNames::folded(QStringView name) {
    QString result = name.toString();
    std::transform(result.cbegin(), result.cend(), result.begin(), [](QChar c) { return c.toCaseFolded(); });
    return result;
}
