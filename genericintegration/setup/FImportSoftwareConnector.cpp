#include "genericintegration/setup/FImportSoftwareConnector.h"

#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FGenIntDefinitionParser.h"
#include "genericintegration/setup/FSetUpParts.h"
#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FTextDecoder.h"
#include "host/core/FUserStep.h"
#include "host/core/FViewCtrl.h"
#include "host/design/FConnectorInterface.h"
#include "host/script/FCmdTable.h"
#include "host/script/FSavedTextReader.h"

#include <QFile>

namespace {

constexpr unsigned int hiddenFromUsers = 2;

void commands(FCmdTable& table) {
    table.creator(
        "softwareConnectorImport", +[](const FNewName& name) { return FImportSoftwareConnector::create(name.name); });
}

/** What a part has brought beside its definition and templates. Of several of a kind, the last one. */
struct PartObjects {
    explicit PartObjects(const FDefinitionGenInt& definition) {
        for (FManaged* child : FObjectManager::instance()->getChildrenOf(&definition)) {
            if (auto* asComputation = dynamic_cast<FGenIntComputation*>(child)) {
                computation = asComputation;
            } else if (auto* asConfiguration = dynamic_cast<FConfigurationGenInt*>(child)) {
                configuration = asConfiguration;
            } else if (auto* asConnector = dynamic_cast<FConnectorInterface*>(child)) {
                connector = asConnector;
            }
        }
    }

    FGenIntComputation* computation = nullptr;
    FConfigurationGenInt* configuration = nullptr;
    FConnectorInterface* connector = nullptr;
};

void setReferences(const PartObjects& objects, FDefinitionGenInt& definition) {
    if (objects.configuration && objects.configuration->getDefinition().ptr() != &definition) {
        objects.configuration->setDefinition(FExpr<FDefinition>(&definition));
    }
    if (objects.computation) {
        objects.computation->setConfiguration(FExpr<FConfigurationCustom>(objects.configuration));
    }
    // Its own computation would be refused with a warning.
    if (objects.connector && objects.connector->getComputation().ptr() != objects.computation) {
        objects.connector->setComputation(FExpr<FExternComputation>(objects.computation));
    }
}

void addEntriesToStep(const FConfigurationGenInt& configuration) {
    for (const FExpr<FEntryBase>& entry : configuration.getEntryMap()) {
        FHistory::instance()->addStep(entry.ptr());
    }
}

}  // namespace

FClassData FImportSoftwareConnector::mClass("FImportSoftwareConnector", &FImport::mClass, &commands, nullptr,
                                            hiddenFromUsers);

FImportSoftwareConnector::FImportSoftwareConnector(const QString& name) : FClass(name) {
    if (!isInitializingPrototype()) {
        mCaption = QStringLiteral("Import Software Connector Setup");
        mFilter = QStringLiteral("LODM (*.lodm)");
    }
}

FImportSoftwareConnector* FImportSoftwareConnector::create(const QString& name) {
    auto* import = new FImportSoftwareConnector(name);
    import->registerObject();
    return import;
}

void FImportSoftwareConnector::doImport(QFile& file, bool flag) {
    Q_UNUSED(flag)
    const QByteArray bytes = FFile::readAtMost(file, FLodmDefinitionParser::longestFile + 1);
    if (bytes.size() <= FLodmDefinitionParser::longestFile) {
        importBytes(bytes, file.fileName());
        return;
    }
    ++mFaultCount;
    FLogMsg::error(file.fileName(),
                   QStringLiteral("the set-ups can't be imported: the file is longer than %1 MiB")
                       .arg(FLodmDefinitionParser::longestFile >> 20U),
                   QStringLiteral("Nothing was read"));
}

void FImportSoftwareConnector::importBytes(const QByteArray& bytes, const QString& source) {
    FUserStep::commitEdits();
    const FProjectLoading loading;
    const FUserStep step(QStringLiteral("Software Connector Import"));
    const FSavedTextReader::Session session;
    if (const int line = FTextDecoder::firstInvalidLine(bytes)) {
        ++mFaultCount;
        FLogMsg::warning(source + QLatin1Char(':') + QString::number(line),
                         QStringLiteral("this line has bytes that aren't UTF-8; they are read as \"\uFFFD\""));
    }
    FScriptNames names;
    const std::vector<FSetUpPart> parts = FSetUpParts::split(FTextDecoder::decode(bytes));
    for (const FSetUpPart& part : parts) {
        for (const QString& name : part.declaredNames()) {
            names.announce(name);
        }
    }
    for (const FSetUpPart& part : parts) {
        importFilePart(part, source, names);
    }
    FViewCtrl::displayVariant(nullptr);
}

void FImportSoftwareConnector::importFilePart(const FSetUpPart& part, const QString& source, FScriptNames& names) {
    if (part.text.isEmpty()) {
        return;
    }
    FGenIntDefinitionParser parser{FExpr<FDefinitionCustom>(FDefinitionGenInt::null())};
    parser.setNames(std::move(names));
    parser.read(part.text, source, part.line);
    names = parser.takeNames();
    mFaultCount += parser.getFaultCount();
    auto* definition = dynamic_cast<FDefinitionGenInt*>(parser.getDefinition().ptr());
    if (!definition) {
        return;
    }
    const PartObjects objects(*definition);
    setReferences(objects, *definition);
    QStringList missing;
    if (objects.configuration) {
        addEntriesToStep(*objects.configuration);
    } else {
        missing.append(QStringLiteral("no configuration"));
    }
    if (!objects.computation) {
        missing.append(QStringLiteral("no computation"));
    }
    reportMissing(part, source, definition->getName(), missing);
}

void FImportSoftwareConnector::reportMissing(const FSetUpPart& part, const QString& source, const QString& setUp,
                                             QStringList missing) {
    if (!part.hasEnd()) {
        missing.append(QStringLiteral("no last line"));
    }
    if (missing.isEmpty()) {
        return;
    }
    ++mFaultCount;
    const QString last = missing.takeLast();
    const QString all = missing.isEmpty() ? last : missing.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
    FLogMsg::warning(FPlace{part.line, 1}.toString(source),
                     QStringLiteral("the set-up of \"%1\" has %2 in the file").arg(setUp, all),
                     QStringLiteral("What it has is imported; export it again if the rest was lost"));
}
