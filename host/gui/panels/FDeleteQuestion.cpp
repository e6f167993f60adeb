#include "host/gui/panels/FDeleteQuestion.h"

#include "host/core/FIO.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/design/FConfiguration.h"
#include "host/design/FConnectorInterface.h"
#include "host/lodm/FCustomComputation.h"

#include <QStringList>

namespace {

/** The connector that goes with an object: the object itself, or that of the computation. */
const FConnectorInterface* connectorOf(const FManaged* object) {
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        const FManaged* computation = connector->getComputation().ptr();
        if (connector->asManaged() == object || (computation && computation == object)) {
            return connector;
        }
    }
    return nullptr;
}

/** The other configurations of the definition that goes with a connector. */
QStringList usersOf(const FConnectorInterface& connector, const QList<FExpr<FManaged>>& deleted) {
    const auto* computation = dynamic_cast<const FCustomComputation*>(connector.getComputation().ptr());
    const FDefinition* definition = connector.getDefinition();
    QStringList users;
    for (FManaged* object : FObjectManager::instance()->getManaged(FConfiguration::null())) {
        const auto& configuration = dynamic_cast<const FConfiguration&>(*object);
        const bool isOwn = computation && computation->getConfiguration().ptr() == &configuration;
        if (definition && configuration.getDefinition().ptr() == definition && !isOwn &&
            !deleted.contains(FExpr<FManaged>(object))) {
            users.append(object->getName());
        }
    }
    return users;
}

QStringList consequencesOf(const FManaged* object, const QList<FExpr<FManaged>>& deleted) {
    QStringList texts;
    const FConnectorInterface* connector = connectorOf(object);
    const auto* computation = dynamic_cast<const FExternComputation*>(object);
    computation = connector ? connector->getComputation().ptr() : computation;
    if (computation && !computation->canRun()) {
        texts.append(QStringLiteral("%1 is running: its run is stopped.").arg(computation->getName()));
    }
    const QStringList users = connector ? usersOf(*connector, deleted) : QStringList();
    if (!users.isEmpty()) {
        texts.append(
            QStringLiteral("The definition %1 goes with %2. These configurations also use it, and have no "
                           "entries without it: %3.")
                .arg(connector->getDefinition()->getName(), object->getName(), users.join(QStringLiteral(", "))));
    }
    return texts;
}

}  // namespace

bool FDeleteQuestion::ask(const QList<FExpr<FManaged>>& objects) {
    QStringList texts;
    for (const FExpr<FManaged>& object : objects) {
        texts += consequencesOf(object.ptr(), objects);
    }
    texts.removeDuplicates();
    return texts.isEmpty() || FIO::question(nullptr, FMerixCtrl::getApplicationTitle(), texts.join(QLatin1Char('\n')),
                                            QStringLiteral("Delete"), QStringLiteral("Cancel"), QString(), 1) == 0;
}
