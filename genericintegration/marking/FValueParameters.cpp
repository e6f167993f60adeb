#include "genericintegration/marking/FValueParameters.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FObjectManager.h"
#include "host/design/FParameter.h"

QList<FGenIntComputation*> FValueParameters::readersOf(const FGenIntResultsFile& file) {
    const FExpr<FGenIntFile> handle(&file);
    QList<FGenIntComputation*> readers;
    for (FManaged* object : FObjectManager::instance()->getManaged(FGenIntComputation::null())) {
        auto* computation = dynamic_cast<FGenIntComputation*>(object);
        const FConfigurationCustom* configuration = computation ? computation->getConfiguration().ptr() : nullptr;
        const FDefinition* definition = configuration ? configuration->getDefinition().ptr() : nullptr;
        const auto* own = dynamic_cast<const FDefinitionGenInt*>(definition);
        if (own && own->getResultsFiles().contains(handle)) {
            readers.append(computation);
        }
    }
    return readers;
}

void FValueParameters::follow(const FGenIntResultsFile& file, FValueReference before, FValueReference after) {
    for (const FGenIntComputation* computation : readersOf(file)) {
        before.computation = computation->getName();
        after.computation = computation->getName();
        for (FObject* client : computation->getClientsCmdHelper({FParameter::null()})) {
            auto* parameter = dynamic_cast<FParameter*>(client);
            if (!parameter || parameter->getValue().toString() != before.text()) {
                continue;
            }
            FExprBase fresh;
            fresh.resolve(after.text());
            if (!fresh.isEmpty()) {
                parameter->setValue(fresh);
            }
        }
    }
}
