#include "genericintegration/connector/FConnectorPage.h"
#include "genericintegration/connector/FSetUpBuilder.h"
#include "genericintegration/connector/FSoftConComputationItem.h"
#include "genericintegration/connector/FSoftConExportItem.h"
#include "genericintegration/connector/FSoftConFileNameRefItem.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConInputTemplateItem.h"
#include "genericintegration/connector/FSoftConOutputTemplateItem.h"
#include "genericintegration/connector/dialogs/FConfigurationGenIntDialog.h"
#include "genericintegration/connector/dialogs/FNewSetUpDialog.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/marking/FValueParameters.h"
#include "genericintegration/setup/FConnectorClass.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FInitPrototype.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FObjectPages.h"
#include "host/gui/base/FSetUpAssistant.h"
#include "host/gui/panels/FNewObjectMenu.h"

namespace {

const FInitPrototypes<FGenIntCommandFileEditor, FGenIntResultsFileEditor> editors("template editors");
const FInitPrototypes<FSoftwareConnectorItem, FSoftConObjectItem, FSoftConComputationItem, FSoftConTemplateItem,
                      FSoftConInputTemplateItem, FSoftConOutputTemplateItem, FSoftConEntryItem, FSoftConExportItem,
                      FSoftConFileNameItem, FSoftConFileNameRefItem, FSoftConImportItem>
    items("connector items");

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

const bool hasConnectors = [] {
    FConnectorClass::setWindowClass(FSoftwareConnector::mClass, &FSoftwareConnector::initPrototype);
    FObjectPages::set(QStringLiteral("FSoftwareConnector"),
                      [](FManaged& object, FNavigator& navigator) -> FObjectPage* {
                          return new FConnectorPage(dynamic_cast<FSoftwareConnector&>(object), navigator);
                      });
    FClassLook::set(QStringLiteral("FSoftwareConnector"), QStringLiteral("connector"), QStringLiteral("Set-ups"),
                    QStringLiteral("software connector"));
    FSetUpAssistant::set([](QWidget* parent) {
        auto* dialog = new FNewSetUpDialog(parent);
        QObject::connect(dialog, &FNewSetUpDialog::confirmed, parent, &FSetUpBuilder::build);
        dialog->open();
    });
    FNewObjectMenu::set(QStringLiteral("C&onfiguration…"), QStringLiteral("configuration"),
                        &FConfigurationGenIntDialog::addConfiguration);
    return true;
}();

}  // namespace
