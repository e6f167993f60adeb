#include "genericintegration/connector/FSoftConComputationItem.h"
#include "genericintegration/connector/FSoftConExportItem.h"
#include "genericintegration/connector/FSoftConFileNameRefItem.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConInputTemplateItem.h"
#include "genericintegration/connector/FSoftConOutputTemplateItem.h"
#include "host/core/FInitPrototype.h"
#include "host/gui/base/FClassLook.h"

namespace {

// In load order, after those that a run needs.
const FInitPrototypes<FSoftwareConnectorItem, FSoftConObjectItem, FSoftConComputationItem, FSoftConTemplateItem,
                      FSoftConInputTemplateItem, FSoftConOutputTemplateItem, FSoftConEntryItem, FSoftConExportItem,
                      FSoftConFileNameItem, FSoftConFileNameRefItem, FSoftConImportItem>
    types;

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
