#include "host/gui/base/FClassLook.h"

namespace {

/** What the user sees of the plug-in's types. */
const bool areLooksSet = [] {
    const QString templates = QStringLiteral("Templates");
    FClassLook::set(QStringLiteral("FGenIntCommandFile"), QStringLiteral("input-template"), templates,
                    QStringLiteral("input template"));
    FClassLook::set(QStringLiteral("FGenIntResultsFile"), QStringLiteral("result-template"), templates,
                    QStringLiteral("result template"));
    return true;
}();

}  // namespace
