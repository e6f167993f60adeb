#include "genericintegration/connector/FSoftConFileNameItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FRefusalNotice.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "genericintegration/connector/layout/FItemRequests.h"
#include "genericintegration/connector/layout/FLinkText.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FIO.h"
#include "host/core/FIni.h"
#include "host/core/FString.h"
#include "host/core/FUserStep.h"
#include "host/gui/fields/FScriptText.h"
#include "host/script/FMemberCmd.h"

#include <QFileInfo>
#include <QPointer>

namespace {

bool isSetByCommand(const FExprBase& fileName) {
    return dynamic_cast<FMemberCmd*>(fileName.getStored()) != nullptr;
}

QString textOf(const FExprBase& text) {
    const auto* value = dynamic_cast<const FBasicType*>(text.getObject());
    return value ? value->toPlainString() : QString();
}

int captionLimit() {
    const FExpr<FInteger> limit = FIni::getSetting(QStringLiteral("Software Connector/Input File Path Length"));
    return limit ? limit->toInt() : FItemCaption::usualLimit;
}

}  // namespace

FClassData FSoftConFileNameItem::mClass("FSoftConFileNameItem", &FSoftConEntryItem::mClass);

FInputFile* FSoftConFileNameItem::file() const {
    return valueOf<FInputFile>(entry());
}

void FSoftConFileNameItem::createObject(const QString& path, const QString& relativePath) {
    const FUserStep step(QStringLiteral("Add file name"));
    const QString folder = FItemPath::folderBelow(path, relativePath);
    const FExprBase saveDirectory = folder.isEmpty() ? FExprBase() : FExprBase(new FString(folder));
    const FExprBase value(new FInputFile(FExprBase(new FString(path)), saveDirectory));
    if (createEntry(QStringLiteral("Exports"), FItemCaption::entryName(path), value)) {
        getScene()->callEditor(this);
    }
}

QString FSoftConFileNameItem::getDisplayName(const FExpr<FEntry>& entry, bool resolved) const {
    const auto* value = valueOf<FInputFile>(entry.ptr());
    if (!value) {
        return entry ? entry->getName() : QString();
    }
    const FExprBase& fileName = value->getFileName();
    if (resolved && fileName.canSafelyBeUpdated(true) && !FScriptText::lacksResults(fileName)) {
        return textOf(fileName);
    }
    return isReference() ? FLinkText::name(fileName.toString()) : fileName.toString();
}

QString FSoftConFileNameItem::getToolTip() const {
    if (!mObject) {
        return {};
    }
    return entry() ? getDisplayName(FExpr<FEntry>(entry()), true) : mObject.getStored()->getClass();
}

QString FSoftConFileNameItem::shownText() const {
    const FInputFile* value = file();
    if (!value) {
        return entry()->getName();
    }
    const FExprBase& fileName = value->getFileName();
    if (isSetByCommand(fileName)) {
        return isReference() ? FLinkText::name(fileName.toString()) : FLinkText::caption(fileName.toString());
    }
    return fileName.canSafelyBeUpdated(true) ? textOf(fileName) : entry()->getName();
}

void FSoftConFileNameItem::updateItem() {
    if (getScene() && entry()) {
        const QString text = shownText();
        paintIcon(QStringLiteral(":/softConFileName_"), text, FItemIcon::dark);
        setupItem(FItemCaption::shortened(text, captionLimit()), false);
        markOutOfDate();
    }
}

bool FSoftConFileNameItem::open() {
    FItemScene* scene = getScene();
    const FInputFile* value = file();
    if (!scene || !value) {
        return FSoftConEntryItem::open();
    }
    const FExprBase fileName = value->getFileName();
    const QString folder = textOf(value->getSaveDirectory());
    // While a question is open, the item can be removed.
    const QPointer<QObject> self(this);
    if (!mayReplace(fileName) || !self) {
        return true;
    }
    QString path = textOf(fileName);
    if (path.isEmpty() && isSetByCommand(fileName)) {
        path = FLinkText::caption(fileName.toString());
    }
    if (!mayLoad(path) || !self || getScene() != scene) {
        return true;
    }
    const FRefusalNotice notice;
    const FUserStep step(QStringLiteral("create input template"));
    const FSoftConObjectItem* made = scene->createItem(nullptr, FGenIntCommandFile::null(), path, folder);
    if (made) {
        scene->deleteItem(this);
        scene->gotoTab(FExpr<FGenIntFile>(made->getObject()));
    }
    return true;
}

bool FSoftConFileNameItem::mayReplace(const FExprBase& fileName) {
    const bool isCommand = isSetByCommand(fileName);
    QString text;
    if (isCommand) {
        text = QStringLiteral(
            "A command was set as value of the input file entry.\nA copy of the file (if available) will be stored as "
            "template, any connection to the command will get lost.\n\n");
    }
    if (!fileName.canSafelyBeUpdated(true)) {
        const QString which = isCommand ? QString() : QStringLiteral("which was set as value of the input file entry ");
        text +=
            QStringLiteral("It might be necessary to evaluate the command %1in order to get the file.\n\n").arg(which);
    }
    return text.isEmpty() || FIO::warning(nullptr, QStringLiteral("Input Template File Creation"), u'\n' + text,
                                          QStringLiteral("Proceed"), QStringLiteral("Cancel")) == 0;
}

bool FSoftConFileNameItem::mayLoad(const QString& path) {
    const QFileInfo file(path);
    const QString size = FItemRequests::checkFileSize(file.size(), QString());
    const QString text = QStringLiteral(
        "File %1 has a size of %2. Loading such a large file may take a while and the project size will be increased "
        "by the file's size.<br><br>Do you still want this file to serve as a template file?");
    return size.isEmpty() ||
           FIO::question(nullptr, QStringLiteral("FSoftwareConnector"), text.arg(file.canonicalFilePath(), size),
                         QStringLiteral("Yes"), QStringLiteral("No"), QString()) == 0;
}
