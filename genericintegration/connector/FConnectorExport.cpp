#include "genericintegration/connector/FConnectorExport.h"

#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FSetUpExport.h"
#include "host/core/FIO.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "host/design/FConnectorInterface.h"
#include "host/run/FComputationChain.h"
#include "host/run/FPathManager.h"

#include <optional>

namespace {

using Extent = FSetUpExport::Extent;

QString labelOf(const FExternComputation& computation) {
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        if (connector->getComputation().ptr() == &computation) {
            return connector->asManaged()->getName() + QLatin1Char('/') + computation.getName();
        }
    }
    return computation.getName();
}

/** Nothing if the user gave it up. */
std::optional<Extent> askExtent(const FGenIntComputation& computation, QWidget* parent) {
    const QString label = labelOf(computation);
    QString chainText = label + QLatin1Char('\n');
    bool isChain = false;
    for (const FExternComputation* member : FComputationChain::of(computation)) {
        if (member != &computation) {
            isChain = true;
            chainText += labelOf(*member) + QLatin1Char('\n');
        }
    }
    if (!isChain) {
        return Extent::Single;
    }
    const int answer =
        FIO::question(parent, QStringLiteral("SoftwareConnector Export"),
                      QStringLiteral("This SoftwareConnector is part of a chain of linked SoftwareConnectors.\n") +
                          chainText + QStringLiteral("\n\nWhat should be exported?"),
                      QStringLiteral("Entire Chain"), label + QStringLiteral(" Only"), QStringLiteral("Cancel"));
    return answer == 0 ? std::optional(Extent::Chain) : answer == 1 ? std::optional(Extent::Single) : std::nullopt;
}

}  // namespace

void FConnectorExport::run(const FGenIntComputation& computation, QWidget* parent) {
    const FExpr<FGenIntComputation> kept(&computation);
    FUserStep::commitEdits();
    if (!FSetUpExport(computation).isPossible()) {
        return;
    }
    const std::optional<Extent> extent = askExtent(computation, parent);
    if (!extent || !kept) {
        return;
    }
    const QString start =
        FPathManager::getProjectDir() + QLatin1Char('/') + computation.getName() + QStringLiteral(".lodm");
    const QString path = FUserInterface::instance()->askSaveFile(QStringLiteral("Export software connector"), start,
                                                                 QStringLiteral("Set-ups (*.lodm)"));
    if (path.isEmpty() || !kept) {
        return;
    }
    if (const QString fault = FSetUpExport(computation, *extent).save(path); !fault.isEmpty()) {
        FIO::warning(parent, QStringLiteral("SoftwareConnector Export"),
                     QStringLiteral("Can't write %1: %2").arg(path, fault));
    }
}
