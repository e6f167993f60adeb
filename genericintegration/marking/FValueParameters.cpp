#include "genericintegration/marking/FValueParameters.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/design/FParameter.h"

QList<FGenIntComputation*> FValueParameters::readersOf(const FGenIntResultsFile& file) {
    const FExpr<FGenIntFile> handle(&file);
    QList<FGenIntComputation*> readers;
    for (FManaged* object : FObjectManager::instance()->getManaged(FGenIntComputation::null())) {
        auto* computation = dynamic_cast<FGenIntComputation*>(object);
        const FDefinitionGenInt* definition = computation ? computation->definition() : nullptr;
        if (definition && definition->getResultsFiles().contains(handle)) {
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
            if (fresh.isEmpty()) {
                FLogMsg::warning(parameter->getName(),
                                 QStringLiteral("it reads \"%1\", which has another name now").arg(before.text()),
                                 QStringLiteral("Set it to \"%1\"").arg(after.text()));
            } else {
                parameter->setValue(fresh);
            }
        }
    }
}
