#include "genericintegration/setup/FDefinitionGenInt.h"

#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenIntCommands.h"
#include "genericintegration/setup/FGenIntObjectArea.h"
#include "genericintegration/setup/FTemplateTagEditor.h"
#include "host/core/FIO.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FEntryDef.h"
#include "host/lodm/FLodmDefinitionParser.h"

#include <QFile>

#include <algorithm>

namespace {

using Files = QList<FExpr<FGenIntFile>>;

/** Files belong to what their definition belongs to. */
void passOn(void (FManaged::*set)(bool), bool flag, const Files& files) {
    for (const FExpr<FGenIntFile>& file : files) {
        if (file) {
            (file.ptr()->*set)(flag);
        }
    }
}

}  // namespace

FClassData FDefinitionGenInt::mClass("FDefinitionGenInt", &FDefinitionCustom::mClass, &definitionGenIntCommands,
                                     &FDefinitionGenInt::fields, shownInDefinitions);

std::vector<std::unique_ptr<FStateField>> FDefinitionGenInt::fields() {
    using F = FDefinitionGenInt;
    return FStateFields<F>()
        .member(&F::mOutputPrecision)
        .linked<Files>([](F& definition) -> Files& { return definition.mTemplates.mAll; })
        .member(&F::mCurFile)
        .member(&F::mLastFile)
        .value<Files>([](F& definition) -> Files& { return definition.mTemplates.mCommandFiles; })
        .value<Files>([](F& definition) -> Files& { return definition.mTemplates.mResultsFiles; })
        .take();
}

FDefinitionGenInt* FDefinitionGenInt::create(const FExpr<FScope>& scope, const QString& name,
                                             const FExpr<FParser>& parser) {
    Q_UNUSED(scope)
    Q_UNUSED(parser)
    auto* definition = new FDefinitionGenInt(name);
    definition->registerObject();
    return definition;
}

FObject* FDefinitionGenInt::clone() const {
    FDefinitionGenInt* copy = create({}, getName(), {});
    copy->init(this);
    return copy;
}

void FDefinitionGenInt::init(const FDefinitionGenInt* other) {
    if (other) {
        FDefinitionCustom::init(other);
    }
}

void FDefinitionGenInt::filesChanged() {
    recordChange();
    setOutOfDate(true);
}

// Not by getFiles, which changes the lists.
QList<FManaged*> FDefinitionGenInt::getParts() const {
    QList<FManaged*> parts;
    for (const FExpr<FGenIntFile>& file : mTemplates.mAll) {
        if (FManaged* part = file.ptr(); part && !parts.contains(part)) {
            parts.append(part);
        }
    }
    return parts;
}

void FDefinitionGenInt::addFile(const FExpr<FGenIntFile>& file) {
    if (file) {
        mTemplates.add(file);
        filesChanged();
    }
}

void FDefinitionGenInt::removeFile(const FExpr<FGenIntFile>& file) {
    mTemplates.remove(file);
    filesChanged();
}

void FDefinitionGenInt::deleteFile(FExpr<FGenIntFile> file) {
    if (!file) {
        return;
    }
    const int answer =
        FIO::question(nullptr, FMerixCtrl::getApplicationTitle(),
                      QStringLiteral("Delete template file ") + file->getName() + QStringLiteral(" permanently?"),
                      QStringLiteral("Yes"), QStringLiteral("Cancel"), QString(), 0, -1, nullptr, QString());
    if (answer != 0) {
        return;
    }
    removeFile(file);
    FManaged::destroy(file.ptr(), true);
}

void FDefinitionGenInt::setFiles(const Files& files) {
    // The list may be one of the definition's own.
    const Files wanted = files;
    mTemplates.clear();
    for (const FExpr<FGenIntFile>& file : wanted) {
        addFile(file);
    }
    filesChanged();
}

FExpr<FGenIntFile> FDefinitionGenInt::getFile(const QString& fileName) const {
    return mTemplates.find(fileName);
}

const Files& FDefinitionGenInt::getFiles() const {
    mTemplates.dropGone();
    return mTemplates.mAll;
}

const Files& FDefinitionGenInt::getFiles(unsigned int kind) const {
    mTemplates.dropGone();
    return kind == 0 ? mTemplates.mCommandFiles : mTemplates.mResultsFiles;
}

QStringList FDefinitionGenInt::getReadFiles() const {
    return mTemplates.getReadFiles();
}

void FDefinitionGenInt::setCurFile(const FExpr<FGenIntFile>& file) {
    recordChange();
    mCurFile = file;
}

void FDefinitionGenInt::setLastFile(const FExpr<FGenIntFile>& file) {
    recordChange();
    mLastFile = file;
}

bool FDefinitionGenInt::isCurCommandFile() const {
    return FTemplateFiles::isCommandFile(mCurFile);
}

void FDefinitionGenInt::addEntry(const FExpr<FEntryBase>& entry) {
    if (entry && entry->getHolder() != this) {
        FDefinitionCustom::addEntry(entry);
    }
}

bool FDefinitionGenInt::removeEntry(const FExpr<FEntryBase>& entry) {
    if (!entry || !FDefinitionCustom::removeEntry(entry)) {
        return false;
    }
    if (!FMerixCtrl::instance()->isLoadingProject()) {
        removeEntryFromCommandFiles(entry);
    }
    return true;
}

bool FDefinitionGenInt::findAndRemoveEntry(const FExpr<FEntryBase>& entry) {
    if (removeEntry(entry)) {
        return true;
    }
    // Taken before, since the path of an entry outside of any group is its name alone.
    const QString path = entry ? entry->getFullName() : QString();
    const QList<FExpr<FEntryBase>> groups = getEntries();
    const bool found = std::any_of(groups.begin(), groups.end(), [&entry](const FExpr<FEntryBase>& group) {
        return group->findAndRemoveEntry(entry);
    });
    if (found) {
        replaceTags(path, entry);
        reinitConfigurations(false);
    }
    return found;
}

QList<FConfigurationGenInt*> FDefinitionGenInt::ownConfigurations() const {
    QList<FConfigurationGenInt*> own;
    for (FConfiguration* configuration : getConfigurations()) {
        if (auto* candidate = objectCast<FConfigurationGenInt>(configuration)) {
            own.append(candidate);
        }
    }
    return own;
}

// Configurations of other classes that have this definition follow on request.
QList<FConfiguration*> FDefinitionGenInt::getFollowers() const {
    const QList<FConfigurationGenInt*> own = ownConfigurations();
    return {own.begin(), own.end()};
}

void FDefinitionGenInt::tellFollowed() {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors(this)) {
        connector->asManaged()->setOutOfDate(true);
    }
}

void FDefinitionGenInt::updateCommandFiles(const QString& oldName, const QString& newName) {
    const QList<FConnectorInterface*> connectors = FConnectorInterface::getConnectors(this);
    FTemplateTagEditor(mTemplates.mCommandFiles).renameTags(oldName, newName);
    for (FConnectorInterface* connector : connectors) {
        connector->refreshCommandFileEditors();
    }
}

bool FDefinitionGenInt::commandFileReferencesEntry(const FExpr<FEntryBase>& entry) const {
    const auto* definition = dynamic_cast<const FEntryDef*>(entry.ptr());
    return definition && FTemplateTagEditor(mTemplates.mCommandFiles).containTag(definition->getFullName());
}

void FDefinitionGenInt::removeEntryFromCommandFiles(const FExpr<FEntryBase>& entry) {
    if (entry) {
        replaceTags(entry->getFullName(), entry);
    }
}

void FDefinitionGenInt::replaceTags(const QString& path, const FExpr<FEntryBase>& entry) {
    const auto* definition = dynamic_cast<const FEntryDef*>(entry.ptr());
    if (!definition) {
        return;
    }
    for (const FExpr<FEntryBase>& nested : definition->getEntries()) {
        replaceTags(path + QLatin1Char('|') + nested->getPathPart(), nested);
    }
    const FExpr<FBasicType> value(definition->getDefaultValue());
    if (value) {
        FTemplateTagEditor(mTemplates.mCommandFiles).replaceTags(path, value->toString());
    }
}

void FDefinitionGenInt::reassignEntryDefs() {
    for (FConfigurationGenInt* configuration : ownConfigurations()) {
        configuration->reassignEntryDefs();
    }
}

bool FDefinitionGenInt::setEntryDefsFromDB(const QString& text) {
    const bool isSet = FDefinition::setEntryDefsFromDB(text);
    reassignEntryDefs();
    return isSet;
}

bool FDefinitionGenInt::save() const {
    QFile file;
    return save({}, file);
}

bool FDefinitionGenInt::save(const QSet<FExpr<FManaged>>& objects, QFile& file) const {
    const bool opens = !file.isOpen();
    if (opens && !openSaveFile(file)) {
        return false;
    }
    QSet<FExpr<FManaged>> inFile;
    const bool isWritten = append(objects, file, inFile);
    return opens ? closeSaveFile(file, isWritten) : isWritten;
}

bool FDefinitionGenInt::append(const QSet<FExpr<FManaged>>& objects, QFile& file, QSet<FExpr<FManaged>>& inFile) const {
    return FLodmDefinitionParser().write(&file, this) && FGenIntObjectArea::write(&file, *this, objects, inFile) &&
           file.flush();
}

void FDefinitionGenInt::setInProject(bool inProject) {
    FManaged::setInProject(inProject);
    passOn(&FManaged::setInProject, inProject, mTemplates.mAll);
}

void FDefinitionGenInt::setInUserConfig(bool inUserConfig) {
    FManaged::setInUserConfig(inUserConfig);
    passOn(&FManaged::setInUserConfig, inUserConfig, isDefault() ? Files() : mTemplates.mAll);
}
