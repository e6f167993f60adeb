#include "genericintegration/setup/FConnectorSetUp.h"

#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntCompSignalRapper.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FModel.h"

#include <algorithm>

namespace {

bool isLoading() {
    return FMerixCtrl::instance()->isLoadingProject();
}

/** The connectors that depend on a computation. */
QList<FConnectorInterface*> connectorsOf(const FExternComputation& computation) {
    QList<FConnectorInterface*> connectors;
    for (FObject* client : computation.getClients()) {
        auto* connector = dynamic_cast<FConnectorInterface*>(client);
        if (connector && connector->asManaged()->isInModel()) {
            connectors.append(connector);
        }
    }
    return connectors;
}

bool isListedElsewhere(const FExpr<FGenIntFile>& file, const FDefinitionGenInt& definition) {
    const auto entities = FModel::instance()->getEntities(FDefinitionGenInt::null());
    return std::any_of(entities.begin(), entities.end(), [&](FManaged* entity) {
        const auto* other = dynamic_cast<const FDefinitionGenInt*>(entity);
        return other && other != &definition && other->getFiles().contains(file);
    });
}

void destroyFiles(const FDefinitionGenInt& definition) {
    const QList<FExpr<FGenIntFile>> files = definition.getFiles();
    for (const FExpr<FGenIntFile>& file : files) {
        if (file && !isListedElsewhere(file, definition)) {
            FManaged::destroy(file.ptr(), true);
        }
    }
}

}  // namespace

FConnectorSetUp::~FConnectorSetUp() {
    QObject::disconnect(mGone);
}

void FConnectorSetUp::start(const FExpr<FExternComputation>& computation) {
    if (computation) {
        setComputation(computation);
    } else if (!isLoading()) {
        setComputation(FExpr<FExternComputation>(FGenIntComputation::create(QStringLiteral("Runner"))));
    }
}

bool FConnectorSetUp::isTaken(const FExpr<FExternComputation>& computation) const {
    const auto connectors = computation ? connectorsOf(*computation.ptr()) : FConnectorInterface::getConnectors();
    const auto holder = std::find_if(connectors.begin(), connectors.end(), [&computation](const auto* connector) {
        return connector->containsComputation(computation);
    });
    if (holder != connectors.end() && computation) {
        FLogMsg::info(mpConnector->asManaged()->getClass(),
                      QStringLiteral("Warning, computation %1 is already set to software connector %2")
                          .arg(computation->getName(), (*holder)->asManaged()->getName()),
                      QStringLiteral("Setter aborted."));
    }
    return holder != connectors.end();
}

void FConnectorSetUp::setComputation(const FExpr<FExternComputation>& computation) {
    if (isTaken(computation)) {
        return;
    }
    FManaged* connector = mpConnector->asManaged();
    FHistory::instance()->record(connector);
    if (!mComputation.assignFor(connector, FExpr<FExternComputation>(computation.ptr()))) {
        FLogMsg::warning(
            connector->getName(),
            QStringLiteral("its computation can't be %1, which depends on this connector").arg(computation->getName()),
            QStringLiteral("It stays unchanged"));
        return;
    }
    listen();
    if (!isLoading()) {
        addMissingConfiguration();
    }
    connector->setOutOfDate(true);
}

bool FConnectorSetUp::containsComputation(const FExpr<FExternComputation>& computation) const {
    return mComputation.ptr() == computation.ptr();
}

FDefinition* FConnectorSetUp::getDefinition() const {
    const auto* computation = dynamic_cast<const FCustomComputation*>(mComputation.ptr());
    const FConfigurationCustom* configuration = computation ? computation->getConfiguration().ptr() : nullptr;
    return configuration ? configuration->getDefinition().ptr() : nullptr;
}

FConfigurationGenInt* FConnectorSetUp::initNewConfiguration(FExternComputation& computation) {
    FDefinitionGenInt* definition = FDefinitionGenInt::create({}, QString(), {});
    FConfigurationGenInt* configuration = FConfigurationGenInt::create({}, QString(), true, definition);
    if (auto* custom = dynamic_cast<FCustomComputation*>(&computation)) {
        custom->setConfiguration(FExpr<FConfigurationCustom>(configuration));
    }
    return configuration;
}

void FConnectorSetUp::addMissingConfiguration() {
    auto* computation = dynamic_cast<FGenIntComputation*>(mComputation.ptr());
    if (computation && !computation->getConfiguration()) {
        initNewConfiguration(*computation);
    }
}

void FConnectorSetUp::follow() {
    const FHistory& history = *FHistory::instance();
    const bool mayChange = history.inTransaction() && !history.isReplaying() && !isLoading();
    if (mayChange && !mIsDestroying && mpConnector->asManaged()->isInModel()) {
        addMissingConfiguration();
    }
}

void FConnectorSetUp::destroyAll() {
    if (FHistory::instance()->isReplaying()) {
        return;
    }
    mIsDestroying = true;
    const FExpr<FExternComputation> computation = mComputation;
    if (const auto* custom = dynamic_cast<const FCustomComputation*>(computation.ptr())) {
        const FExpr<FConfigurationCustom> configuration = custom->getConfiguration();
        const FExpr<FDefinition> definition(getDefinition());
        FManaged::destroy(configuration.ptr(), true);
        if (const auto* ownFiles = dynamic_cast<const FDefinitionGenInt*>(definition.ptr())) {
            destroyFiles(*ownFiles);
        }
        FManaged::destroy(definition.ptr(), true);
    }
    FManaged::destroy(computation.ptr(), true);
    mIsDestroying = false;
}

void FConnectorSetUp::listen() {
    QObject::disconnect(mGone);
    const auto* computation = dynamic_cast<const FGenIntComputation*>(mComputation.getStored());
    mGone = computation
                ? QObject::connect(computation->getSignalRapper(), &FGenIntCompSignalRapper::genIntCompDestroyed,
                                   [this] { FManaged::destroy(mpConnector->asManaged(), true); })
                : QMetaObject::Connection();
}
