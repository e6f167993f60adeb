#include "genericintegration/setup/FGenIntComputation.h"

#include "genericintegration/io/FGenIntWriter.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntCompSignalRapper.h"
#include "genericintegration/setup/FResultsGenInt.h"
#include "genericintegration/setup/FSetUpExport.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserStep.h"
#include "host/core/FViewCtrl.h"
#include "host/design/FConnectorInterface.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultFiles.h"
#include "host/script/FCmdTable.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace {

FGenIntComputation* setConfiguration(FGenIntComputation& computation,
                                     const FExpr<FConfigurationGenInt>& configuration) {
    computation.setConfiguration(configuration);
    return &computation;
}

void commands(FCmdTable& table) {
    using F = FGenIntComputation;
    table.creator(
        "genericIntegrationComputation", +[](const FNewName& name) { return F::create(name.name); });
    table.attribute<F>("setConfiguration", &setConfiguration, &F::getConfiguration, {"custom configuration"})
        .cmdFlags(16)
        .attrName("Configuration")
        .category("Execution Settings")
        .attrAsExpr(false)
        .attrRequiredCmd("true")
        .userLevel(1)
        .weight(5.0)
        .data();
    table.member<F>("getResults", &F::getResults)
        .returns(FCmdTypeOf<FExpr<FResultsGenInt>>::type())
        .query()
        .explains<FExternComputation>(&F::explainNoResults);
    table.member<F>("openSoftwareConnector", &F::openSoftwareConnector)
        .systemFlag(1)
        .menuEntry("Open Software Connector", 1)
        .menuIcon(":/softConIcon");
    table.hideInherited("FMemberCmdFCustomComputationgetResults");
    table.hideInherited("FAttribCmdFCustomComputationsetConfigurationFConfigurationCustom");
    table.hideInherited("FAttribCmdFCustomComputationsetCmdFilestring");
}

}  // namespace

FClassData FGenIntComputation::mClass("FGenIntComputation", &FCustomComputation::mClass, &commands);

FGenIntComputation::FGenIntComputation(const QString& name)
    : FClass(name), mpSignalRapper(std::make_unique<FGenIntCompSignalRapper>(this)) {
    if (!isInitializingPrototype()) {
        mConfiguration.registerClient(this, false);
    }
}

FGenIntComputation::~FGenIntComputation() = default;

FGenIntComputation* FGenIntComputation::create(const QString& name) {
    auto* computation = new FGenIntComputation(name);
    computation->registerObject();
    return computation;
}

FObject* FGenIntComputation::clone() const {
    auto* copy = new FGenIntComputation(getName());
    copy->registerObject();
    copy->init(this);
    return copy;
}

void FGenIntComputation::init(const FGenIntComputation* other) {
    // Deliberately skips FCustomComputation: a copy starts without a configuration.
    FExternComputation::init(other);
}

void FGenIntComputation::leaveModel() {
    emit mpSignalRapper->genIntCompDestroyed();
    FCustomComputation::leaveModel();
}

FManaged* FGenIntComputation::setName(const QString& name) {
    static bool isRenaming = false;
    if (isRenaming) {
        return FExternComputation::setName(name);
    }
    isRenaming = true;
    FExternComputation::setName(name);
    if (!FMerixCtrl::instance()->isLoadingProject()) {
        FObjectManager::instance()->emitNameChanged(getPrototype(), getName(), getDbId());
    }
    isRenaming = false;
    return this;
}

bool FGenIntComputation::exportSetUp(const QString& path, bool chain) const {
    const FSetUpExport file(*this, chain ? FSetUpExport::Extent::Chain : FSetUpExport::Extent::Single);
    const QString reason =
        file.isPossible() ? file.save(path) : QStringLiteral("it has no configuration with a definition");
    if (!reason.isEmpty()) {
        FLogMsg::error(getName(), QStringLiteral("its set-up can't be written to \"%1\": %2").arg(path, reason),
                       QFileInfo::exists(path) ? QStringLiteral("what is there is unchanged") : QString());
    }
    return reason.isEmpty();
}

// ---- steps of a run ----

bool FGenIntComputation::writeOutputFile() const {
    const FExpr<FDesign> design;
    const FExpr<FExternComputation> computation;
    const FExpr<FConfigurationGenInt> configuration(getConfiguration());
    return FGenIntWriter::instance()->exportCommandFiles(configuration,
                                                         FPathManager::instance()->getInputDir(computation, design));
}

QString FGenIntComputation::getInputFault() const {
    return FGenIntWriter::instance()->getFault();
}

QMap<QString, QString> FGenIntComputation::describeSetUp() const {
    QMap<QString, QString> setUp = FCustomComputation::describeSetUp();
    const FDefinitionGenInt* described = definition();
    const QList<FExpr<FGenIntFile>> files = described ? described->getFiles(0) : QList<FExpr<FGenIntFile>>();
    for (const FExpr<FGenIntFile>& file : files) {
        if (!file) {
            continue;
        }
        const QByteArray content = (file->getForceWindowsLineEndings() ? "1" : "0") + file->getPlainContent().toUtf8();
        setUp.insert(QStringLiteral("input file %1:").arg(file->getFileName()),
                     QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex()));
    }
    return setUp;
}

std::vector<FExternComputation::ReadingPart> FGenIntComputation::getReadingParts() const {
    std::vector<ReadingPart> parts;
    const FDefinitionGenInt* described = definition();
    const QList<FExpr<FGenIntFile>> files = described ? described->getResultsFiles() : QList<FExpr<FGenIntFile>>();
    for (const FExpr<FGenIntResultsFile>& file : FGenIntResultsFile::among(files)) {
        for (const FExpr<FObject>& element : file->getValues()->getObjects()) {
            const auto* value = dynamic_cast<const FGenIntResultsFileValue*>(element.getStored());
            // A plain number follows nothing.
            if (value && !dynamic_cast<const FBasicType*>(value->mNumAverageRows.getStored())) {
                parts.push_back({value, QStringLiteral("rows of ") + value->mName});
            }
        }
    }
    return parts;
}

QString FGenIntComputation::getFileNameFault() const {
    const FDefinitionGenInt* described = definition();
    for (const FExpr<FGenIntFile>& file : described ? described->getFiles() : QList<FExpr<FGenIntFile>>()) {
        const QString fault = file ? FResultFiles::faultOfTemplate(file->getFileName()) : QString();
        if (!fault.isEmpty()) {
            const bool isInput = file->isTypeOf(FGenIntCommandFile::null());
            return QStringLiteral(
                       "The %1 template \"%2\" %3. Give it the name of a file below the folder of the run with "
                       "setFileName.")
                .arg(isInput ? QStringLiteral("input") : QStringLiteral("result"), file->getName(), fault);
        }
    }
    return {};
}

void FGenIntComputation::computationStarted() const {
    enableSoftCons(false);
    emit mpSignalRapper->genIntRunStarted();
}

void FGenIntComputation::computationFinished() const {
    enableSoftCons(true);
    emit mpSignalRapper->genIntRunEnded(true);
}

FDefinitionGenInt* FGenIntComputation::definition() const {
    const FConfigurationCustom* configuration = getConfiguration().ptr();
    return configuration ? dynamic_cast<FDefinitionGenInt*>(configuration->getDefinition().ptr()) : nullptr;
}

void FGenIntComputation::applyOutputHandles(FComputationResults* results) const {
    auto* ofIntegration = dynamic_cast<FResultsGenInt*>(results);
    FDefinitionGenInt* described = definition();
    if (described && ofIntegration) {
        // Part of the run, not a step of the history.
        const FHistoryBlocker blocker;
        ofIntegration->setOutputHandles(described->getFiles(1));
        FHistory::instance()->record(ofIntegration);
    }
}

void FGenIntComputation::processReread(FComputationResults* results) {
    auto* ofIntegration = dynamic_cast<FResultsGenInt*>(results);
    if (!ofIntegration || !getConfiguration()) {
        return;
    }
    ofIntegration->setResultFiles(getConfiguration()->getResultsFileNames());
    applyOutputHandles(results);
}

const FObject* FGenIntComputation::getResultType() const {
    return FResultsGenInt::null();
}

// ---- connectors ----

void FGenIntComputation::enableSoftCons(bool enable) const {
    if (!FViewCtrl::instance()->hasGui()) {
        return;
    }
    const FExpr<FExternComputation> self(this);
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        if (connector->containsComputation(self)) {
            connector->disableGui(!enable);
        }
    }
}

void FGenIntComputation::openSoftwareConnector() const {
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        if (connector->getComputation().ptr() == this) {
            connector->showConnector();
            return;
        }
    }
    const FUserStep step(QStringLiteral("Open Software Connector"));
    FConnectorInterface* made =
        FConnectorInterface::create(getName() + QStringLiteral("_connector"), FExpr<FExternComputation>(this));
    if (made) {
        made->showConnector();
    }
}

bool FGenIntComputation::doubleClickedInTree() {
    const FUserStep step(QStringLiteral("Open Software Connector"));
    openSoftwareConnector();
    return true;
}
