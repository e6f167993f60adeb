#include "genericintegration/setup/FResultLinks.h"

#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FQuotedText.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FEntry.h"
#include "host/design/FResultsFileName.h"
#include "host/lodm/FCustomComputation.h"

namespace {

FResultLinks::Link linkTo(const QString& computation, const char* command, const QString& name, bool isTemplate) {
    return {name,
            QStringLiteral("%1.getResults().%2(%3)").arg(computation, QString::fromLatin1(command), quoteText(name)),
            isTemplate};
}

FResultLinks linksOf(FConnectorInterface& connector, const FExternComputation& computation) {
    const QString name = computation.getName();
    FResultLinks found{connector.asManaged()->getName() + QLatin1Char('/') + name, {}};
    const auto* custom = dynamic_cast<const FCustomComputation*>(&computation);
    const FConfigurationCustom* configuration = custom ? custom->getConfiguration().ptr() : nullptr;
    if (configuration) {
        for (const FExpr<FEntry>& entry : configuration->getEntry(FResultsFileName::null(), true)) {
            const auto* value = dynamic_cast<const FResultsFileName*>(entry->getValue().getStored());
            const QString file = value ? value->getFileNameText() : QString();
            if (!file.isEmpty()) {
                found.links.append(linkTo(name, "getResultFileName", file, false));
            }
        }
    }
    if (const auto* definition = dynamic_cast<const FDefinitionGenInt*>(connector.getDefinition())) {
        for (const FExpr<FGenIntFile>& file : definition->getFiles()) {
            if (dynamic_cast<const FGenIntResultsFile*>(file.ptr())) {
                found.links.append(linkTo(name, "getResultTemplateName", file->getFileName(), true));
            }
        }
    }
    return found;
}

}  // namespace

QList<FResultLinks> FResultLinks::of(const FConnectorInterface* caller) {
    QList<FResultLinks> all;
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        const FExpr<FExternComputation> computation = connector->getComputation();
        if (connector != caller && computation) {
            all.append(linksOf(*connector, *computation.ptr()));
        }
    }
    return all;
}
