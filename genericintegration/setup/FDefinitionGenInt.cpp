#include "genericintegration/setup/FDefinitionGenInt.h"

#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenIntCommands.h"
#include "genericintegration/setup/FGenIntObjectArea.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FIO.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FEntryDef.h"
#include "host/lodm/FLodmDefinitionParser.h"

#include <QFile>

#include <algorithm>

namespace {

using Files = QList<FExpr<FGenIntFile>>;

constexpr unsigned int shownInDefinitions = 1;

bool isCommandFile(const FExpr<FGenIntFile>& file) {
    const FGenIntFile* object = file.ptr();
    return object && object->isTypeOf(FGenIntCommandFile::null());
}

/** Removes all handles on the first object of the list that is gone; returns how many. */
template <class IsGone>
int dropFirstGone(Files& files, FExpr<FGenIntFile>& gone, IsGone isGone) {
    const auto found = std::find_if(files.begin(), files.end(), isGone);
    if (found == files.end()) {
        return 0;
    }
    gone = *found;
    return files.removeAll(gone);
}

/** Where a definition is kept, its files are kept, too. */
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
        .linked(&F::mFiles)
        .member(&F::mCurFile)
        .member(&F::mLastFile)
        .member(&F::mCommandFiles)
        .member(&F::mResultsFiles)
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

void FDefinitionGenInt::addFile(const FExpr<FGenIntFile>& file) {
    if (!file) {
        return;
    }
    mFiles.append(file);
    mFiles.last().registerClient(this, false);
    (isCommandFile(file) ? mCommandFiles : mResultsFiles).append(file);
    filesChanged();
}

void FDefinitionGenInt::removeFile(const FExpr<FGenIntFile>& file) {
    // The handle given may be one of the lists' own.
    const FExpr<FGenIntFile> removed = file;
    for (int count = mFiles.removeAll(removed); count > 0; --count) {
        removed.unregisterClient(this);
    }
    mCommandFiles.removeAll(removed);
    mResultsFiles.removeAll(removed);
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
    // The list given may be one of the definition's own.
    const Files wanted = files;
    for (const FExpr<FGenIntFile>& file : mFiles) {
        file.unregisterClient(this);
    }
    mFiles.clear();
    mCommandFiles.clear();
    mResultsFiles.clear();
    for (const FExpr<FGenIntFile>& file : wanted) {
        addFile(file);
    }
    filesChanged();
}

FExpr<FGenIntFile> FDefinitionGenInt::getFile(const QString& fileName) const {
    const auto found = std::find_if(mFiles.begin(), mFiles.end(), [&fileName](const FExpr<FGenIntFile>& file) {
        return file && file->getFileName() == fileName;
    });
    return fileName.isEmpty() || found == mFiles.end() ? FExpr<FGenIntFile>() : *found;
}

const Files& FDefinitionGenInt::getFiles() const {
    clearFileStorages();
    return mFiles;
}

const Files& FDefinitionGenInt::getFiles(unsigned int kind) const {
    clearFileStorages();
    return kind == 0 ? mCommandFiles : mResultsFiles;
}

// Each list is walked to its first hit only, so several files that went away go one at a time.
void FDefinitionGenInt::clearFileStorages() const {
    const auto isDead = [](const FExpr<FGenIntFile>& file) { return !file.ptr(); };
    FExpr<FGenIntFile> gone;
    int count =
        dropFirstGone(mFiles, gone, [](const FExpr<FGenIntFile>& file) { return !FObject::exists(file.ptr()); });
    for (; count > 0; --count) {
        gone.unregisterClient(this);
    }
    dropFirstGone(mCommandFiles, gone, isDead);
    dropFirstGone(mResultsFiles, gone, isDead);
}

QStringList FDefinitionGenInt::getReadFiles() const {
    QStringList names;
    for (const FExpr<FGenIntFile>& file : mResultsFiles) {
        if (file) {
            names.append(file->getFileName());
        }
    }
    return names;
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
    return isCommandFile(mCurFile);
}

void FDefinitionGenInt::addEntry(const FExpr<FEntryBase>& entry) {
    if (!entry || getEntries().contains(entry)) {
        return;
    }
    FDefinitionBase::addEntry(entry);
    reinitConfigurations(false);
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
    // Taken before, since an entry that stands nowhere has a path of its name alone.
    const QString path = entry ? entry->getFullName() : QString();
    const QList<FExpr<FEntryBase>> groups = getEntries();
    const bool found = std::any_of(groups.begin(), groups.end(), [&entry](const FExpr<FEntryBase>& group) {
        return group->findAndRemoveEntry(entry);
    });
    if (found) {
        putInPlaceOfTags(path, entry);
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

// A configuration of another class that has this definition follows when it is asked to.
void FDefinitionGenInt::reinitConfigurations(bool reset) {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    for (FConfigurationGenInt* configuration : ownConfigurations()) {
        configuration->reinit(reset);
    }
    if (FMerixCtrl::instance()->isLoadingProject()) {
        return;
    }
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors(this)) {
        connector->asManaged()->setOutOfDate(true);
    }
}

void FDefinitionGenInt::updateCommandFiles(const QString& oldName, const QString& newName) {
    const QList<FConnectorInterface*> connectors = FConnectorInterface::getConnectors(this);
    const Files files = mCommandFiles;
    for (const FExpr<FGenIntFile>& file : files) {
        if (auto* commandFile = dynamic_cast<FGenIntCommandFile*>(file.ptr())) {
            commandFile->updateFile(oldName, newName);
        }
    }
    for (FConnectorInterface* connector : connectors) {
        connector->refreshCommandFileEditors();
    }
}

bool FDefinitionGenInt::commandFileReferencesEntry(const FExpr<FEntryBase>& entry) const {
    const auto* definition = dynamic_cast<const FEntryDef*>(entry.ptr());
    return definition && std::any_of(mCommandFiles.begin(), mCommandFiles.end(), [&](const FExpr<FGenIntFile>& file) {
               return file && FTemplateTags::containsTag(file->getPlainContent(), definition->getFullName());
           });
}

void FDefinitionGenInt::removeEntryFromCommandFiles(const FExpr<FEntryBase>& entry) {
    if (entry) {
        putInPlaceOfTags(entry->getFullName(), entry);
    }
}

void FDefinitionGenInt::putInPlaceOfTags(const QString& path, const FExpr<FEntryBase>& entry) {
    const auto* definition = dynamic_cast<const FEntryDef*>(entry.ptr());
    const FExpr<FBasicType> value(definition ? definition->getDefaultValue() : FExprBase());
    if (!value) {
        return;
    }
    const QString text = value->toString();
    const Files files = mCommandFiles;
    for (const FExpr<FGenIntFile>& file : files) {
        if (file) {
            file->setContent(FTemplateTags::replaceTag(file->getPlainContent(), path, text));
        }
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
    const bool isWritten =
        FLodmDefinitionParser().write(&file, this) && FGenIntObjectArea::write(&file, *this, objects);
    return opens ? closeSaveFile(file, isWritten) : isWritten && file.flush();
}

void FDefinitionGenInt::setInProject(bool inProject) {
    FManaged::setInProject(inProject);
    passOn(&FManaged::setInProject, inProject, mFiles);
}

void FDefinitionGenInt::setInUserConfig(bool inUserConfig) {
    FManaged::setInUserConfig(inUserConfig);
    passOn(&FManaged::setInUserConfig, inUserConfig, isDefault() ? Files() : mFiles);
}
