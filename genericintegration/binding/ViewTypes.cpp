#include "genericintegration/connector/FSoftConComputationItem.h"
#include "genericintegration/connector/FSoftConExportItem.h"
#include "genericintegration/connector/FSoftConFileNameRefItem.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConInputTemplateItem.h"
#include "genericintegration/connector/FSoftConOutputTemplateItem.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/marking/FValueParameters.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FInitPrototype.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FObjectPages.h"

namespace {

// In load order, after those that a run needs.
const FInitPrototypes<FGenIntCommandFileEditor, FGenIntResultsFileEditor, FSoftwareConnectorItem, FSoftConObjectItem,
                      FSoftConComputationItem, FSoftConTemplateItem, FSoftConInputTemplateItem,
                      FSoftConOutputTemplateItem, FSoftConEntryItem, FSoftConExportItem, FSoftConFileNameItem,
                      FSoftConFileNameRefItem, FSoftConImportItem>
    types;

const bool arePagesSet = [] {
    FObjectPages::set(QStringLiteral("FGenIntCommandFile"), [](FManaged& object, FNavigator& navigator) {
        auto* page = new FGenIntCommandFileEditor(nullptr, FExpr<FGenIntCommandFile>(&object), {});
        page->setNavigator(&navigator);
        return page;
    });
    FObjectPages::set(QStringLiteral("FGenIntResultsFile"), [](FManaged& object, FNavigator&) {
        auto& file = dynamic_cast<FGenIntResultsFile&>(object);
        const QList<FGenIntComputation*> readers = FValueParameters::readersOf(file);
        return new FGenIntResultsFileEditor(nullptr, FExpr<FGenIntResultsFile>(&file),
                                            FExpr<FGenIntComputation>(readers.value(0)));
    });
    return true;
}();

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
