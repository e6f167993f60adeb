#include "host/script/FSyntaxExpr.h"

QStringList FSyntaxExpr::getNames() const {
    QStringList names;
    if (kind == Kind::Name) {
        names.append(name);
    }
    for (const FSyntaxExpr& operand : operands) {
        names.append(operand.getNames());
    }
    return names;
}
