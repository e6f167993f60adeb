#include "host/lodm/FCustomComputation.h"

#include "host/core/FFile.h"
#include "host/core/FLogMsg.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/lodm/FGeometryContent.h"
#include "host/lodm/FLodmPath.h"
#include "host/run/FFileDigest.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRunFolderFile.h"
#include "host/script/FCmdTable.h"

#include <QCryptographicHash>
#include <QDir>

namespace {

/** More entries aren't compared between runs, which would take as long as writing them. */
constexpr int mostCompared = 10'000;

/** Of an input file, the source counts: its name in the folder of the run is often that of the template. */
QString textOf(const FObject* value) {
    if (const auto* file = dynamic_cast<const FFileReference*>(value)) {
        return file->getFileNameText();
    }
    const auto* basic = dynamic_cast<const FBasicType*>(value);
    return basic ? basic->toPlainString() : value ? value->toExpressionString() : QStringLiteral("NULL");
}

/** Long texts are cut, with a digest that shows a change of the rest. */
QString shortened(const QString& text) {
    constexpr int longest = 80;
    constexpr int kept = 40;
    constexpr int digits = 10;
    if (text.size() <= longest) {
        return text;
    }
    const QByteArray digest = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex().left(digits);
    return QStringLiteral("%1… (%2)").arg(text.left(kept), QString::fromLatin1(digest));
}

}  // namespace

QList<FManaged*> FCustomComputation::getParts() const {
    QList<FManaged*> parts;
    if (mConfiguration) {
        if (FManaged* definition = mConfiguration->getDefinition().ptr()) {
            parts.append(definition);
        }
        parts.append(mConfiguration.ptr());
    }
    return parts + FExternComputation::getParts();
}

void FCustomComputation::declareCommands(FCmdTable& table) {
    using F = FCustomComputation;
    table.member<F>("getResults", &F::getResults).query().explains<FExternComputation>(&F::explainNoResults);
    table.attribute<F>("setConfiguration", &F::setConfiguration, &F::getConfiguration, {"configuration"})
        .attrName("Configuration")
        .data();
    table
        .member<F>("exportSetUp",
                   +[](const F& computation, const QString& fileName, bool chain) {
                       return computation.exportSetUp(lodmPath(FFile::resolveEnv(fileName)), chain);
                   },
                   {"fileName", "chain=false"})
        .outcome();
    table.plain<F>("setCmdFile", &F::mCmdFile, {"fileName"}).copied().attrName("Command File");
}

FClassData FCustomComputation::mClass("FCustomComputation", &FExternComputation::mClass,
                                      &FCustomComputation::declareCommands, &FCustomComputation::fields);

std::vector<std::unique_ptr<FStateField>> FCustomComputation::fields() {
    return FStateFields<FCustomComputation>().linked(&FCustomComputation::mConfiguration).take();
}

void FCustomComputation::init(const FCustomComputation* other) {
    if (other) {
        FExternComputation::init(other);
        setConfiguration(other->mConfiguration);
        copyAttributes(FCustomComputation::mClass, *other);
    }
}

void FCustomComputation::setConfiguration(const FExpr<FConfigurationCustom>& configuration) {
    recordChange();
    if (!mConfiguration.assignFor(this, configuration)) {
        FLogMsg::warning(getName(),
                         QStringLiteral("Its configuration can't be %1, whose entries are read from this computation")
                             .arg(configuration->getName()),
                         QStringLiteral("It stays as it was"));
        return;
    }
    setOutOfDate(true);
}

FCustomComputation* FCustomComputation::cloneSetup() const {
    const FConfigurationCustom* source = mConfiguration.ptr();
    const FExpr<FConfigurationCustom> configuration(
        dynamic_cast<const FConfigurationCustom*>(source ? source->clone() : nullptr));
    if (source && !configuration) {
        return nullptr;
    }
    auto* copy = dynamic_cast<FCustomComputation*>(clone());
    if (copy) {
        copy->registerObject();
    }
    if (copy && configuration) {
        configuration->registerObject();
        copy->setConfiguration(configuration);
    }
    return copy;
}

bool FCustomComputation::exportSetUp(const QString& path, bool chain) const {
    Q_UNUSED(chain)
    FLogMsg::error(getName(), QStringLiteral("its set-up can't be written to \"%1\"").arg(path),
                   QStringLiteral("Computations of the class %1 have no exchange file").arg(getClass()));
    return false;
}

QString FCustomComputation::getResultFile(const QString& path) const {
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    const FEntry* entry = configuration ? configuration->getValueEntry(path) : nullptr;
    const auto* file = dynamic_cast<const FResultsFileName*>(entry ? entry->getValueObject() : nullptr);
    return file ? file->getFileNameText() : QString();
}

bool FCustomComputation::copyInputFiles(const QString& folder) const {
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    return !configuration || configuration->copyInputFiles(folder);
}

bool FCustomComputation::doExports() const {
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    return !configuration || configuration->doExports();
}

bool FCustomComputation::writeOutputFile() const {
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    if (!configuration || mCmdFile.isEmpty()) {
        return true;
    }
    QString text;
    const QMap<QString, FExpr<FEntryBase>>& entries = configuration->getEntryMap();
    for (auto row = entries.begin(); row != entries.end(); ++row) {
        const auto* value = dynamic_cast<const FBasicType*>(row.value()->getValueObject());
        text += row.key() + QStringLiteral(" = ") + (value ? value->toPlainString() : QString()) + QLatin1Char('\n');
    }
    const QString reason = FRunFolderFile(FPathManager::instance()->getInputDir({}, {}), mCmdFile).write(text.toUtf8());
    if (!reason.isEmpty()) {
        FLogMsg::error(getName(), QStringLiteral("The command file can't be written: ") + reason);
    }
    return reason.isEmpty();
}

void FCustomComputation::finalizeRun() const {
    FExternComputation::finalizeRun();
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    auto* results = dynamic_cast<FResultsGeneric*>(getCurrentResults().ptr());
    if (configuration && results) {
        results->setResultFiles(configuration->getResultsFileNames());
    }
}

QStringList FCustomComputation::getReadFiles() const {
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    const FDefinition* definition = configuration ? configuration->getDefinition().ptr() : nullptr;
    return definition ? definition->getReadFiles() : QStringList();
}

QMap<QString, QString> FCustomComputation::getWrittenValues() const {
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    const QMap<QString, FExpr<FEntryBase>> entries =
        configuration ? configuration->getEntryMap() : QMap<QString, FExpr<FEntryBase>>();
    QMap<QString, QString> values;
    // An entry that is out of date wasn't written, and its evaluation might read files.
    for (auto row = entries.begin(); row != entries.end() && entries.size() <= mostCompared; ++row) {
        const FObject* value = row.value()->isOutOfDate() ? nullptr : row.value()->getValueObject();
        if (const auto* basic = dynamic_cast<const FBasicType*>(value)) {
            values.insert(row.key(), basic->toPlainString());
        }
    }
    return values;
}

QStringList FCustomComputation::getFurtherFiles() const {
    QStringList names;
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    for (const FExpr<FResultsFileName>& file :
         configuration ? configuration->getResultsFileNames() : QList<FExpr<FResultsFileName>>()) {
        names.append(file->getFileNameText());
    }
    return names;
}

QMap<QString, QString> FCustomComputation::describeSetUp() const {
    QMap<QString, QString> setUp = FExternComputation::describeSetUp();
    const FConfigurationCustom* configuration = mConfiguration.ptr();
    if (!configuration) {
        return setUp;
    }
    const QMap<QString, FExpr<FEntryBase>>& entries = configuration->getEntryMap();
    for (auto row = entries.begin(); row != entries.end(); ++row) {
        const FObject* value = row.value()->getValueObject();
        setUp.insert(row.key(), shortened(textOf(value)));
        if (const auto* file = dynamic_cast<const FInputFile*>(value)) {
            const QDir folder(FPathManager::getProjectDir());
            setUp.insert(QStringLiteral("file of %1:").arg(row.key()),
                         FFileDigest::of(folder.filePath(file->getFileNameText())));
        } else if (const auto* geometry = dynamic_cast<const FGeometryExport*>(value)) {
            setUp.insert(QStringLiteral("file of %1:").arg(row.key()), FGeometryContent(*geometry).digest());
        }
    }
    return setUp;
}
