#include "genericintegration/connector/FSetUpBuilder.h"

#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/connector/dialogs/FNewSetUp.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FObjectList.h"
#include "host/core/FString.h"
#include "host/core/FUserStep.h"
#include "host/design/FInputFile.h"
#include "host/gui/base/FCommandCall.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdRow.h"

namespace {

void set(FGenIntComputation& computation, const char* attribute, const FExprBase& value) {
    const auto rows = FCmdManager::instance()->findMembers(computation.getClassData(), QString::fromLatin1(attribute));
    FCommandCall::execute(*rows.front(), FExprBase(&computation), {value});
}

FGenIntComputation* addComputation(const FNewSetUp& setUp) {
    FGenIntComputation* computation = FGenIntComputation::create(setUp.name);
    const QString& name = computation->getName();
    FDefinitionGenInt* definition = FDefinitionGenInt::create({}, name + QStringLiteral("_definition"), {});
    computation->setConfiguration(FExpr<FConfigurationCustom>(
        FConfigurationGenInt::create({}, name + QStringLiteral("_configuration"), true, definition)));
    set(*computation, "setExecutable", FExprBase(new FString(setUp.program)));
    auto* arguments = new FObjectList;
    for (const QString& argument : setUp.arguments) {
        arguments->add(FExpr<FObject>(new FString(argument)));
    }
    set(*computation, "setArguments", FExprBase(arguments));
    if (!setUp.standardInput.isEmpty()) {
        set(*computation, "setStandardInput", FExprBase(new FString(setUp.standardInput)));
    }
    return computation;
}

void addFiles(const FNewSetUp& setUp, FSoftwareConnector& connector) {
    QStringList templates;
    QStringList copied;
    for (const FNewSetUp::Input& input : setUp.inputs) {
        (input.isTemplate ? templates : copied).append(input.path);
    }
    connector.getScene()->createItems(templates, FExpr<FObject>(FGenIntCommandFile::null()), QString(), true);
    connector.addFiles(copied, FExpr<FObject>(FInputFile::null()));
    connector.addFiles(setUp.outputs, FExpr<FObject>(FGenIntResultsFile::null()));
}

}  // namespace

void FSetUpBuilder::build(const FNewSetUp& setUp) {
    FExpr<FSoftwareConnector> connector;
    {
        const FUserStep step(QStringLiteral("New set-up"));
        FGenIntComputation* computation = addComputation(setUp);
        connector = FExpr<FSoftwareConnector>(FSoftwareConnector::create(
            computation->getName() + QStringLiteral("_connector"), FExpr<FExternComputation>(computation)));
        connector->useLastItemSize();
        addFiles(setUp, *connector.ptr());
    }
    if (connector) {
        connector->showConnector();
        connector->gotoFirstTemplate();
    }
}
