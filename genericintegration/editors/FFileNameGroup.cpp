#include "genericintegration/editors/FFileNameGroup.h"

#include "genericintegration/editors/FCommittedEdit.h"
#include "genericintegration/editors/FFormFields.h"
#include "host/gui/base/FFormRow.h"

#include <QLabel>

#include <algorithm>

FFileNameGroup::FFileNameGroup()
    : FGroupBox(QStringLiteral("General")),
      mpName(FFormFields::named(new FCommittedEdit, "templateName", "Template Name")),
      mpFolders(FFormFields::named(new FCommittedEdit, "templatePath", "Subfolder")) {
    mpName->setEnabled(false);
    addRow(new FFormRow(QStringLiteral("Template Name"), {mpName}));
    auto* folders = new FFormRow(QStringLiteral("Subfolder"), {mpFolders});
    const QString toolTip = QStringLiteral("Subfolder of current result directory");
    folders->label()->setToolTip(toolTip);
    mpFolders->setToolTip(toolTip);
    folders->setLast();
    addRow(folders);
    connect(mpName, &FCommittedEdit::entered, this, &FFileNameGroup::nameEntered);
    connect(mpFolders, &FCommittedEdit::entered, this, &FFileNameGroup::foldersEntered);
}

void FFileNameGroup::show(const QString& fileName) {
    const int length = std::max(fileName.lastIndexOf(u'/'), fileName.lastIndexOf(u'\\')) + 1;
    mpFolders->show(fileName.left(length));
    mpName->show(fileName.mid(length));
}

void FFileNameGroup::showFolders(const QString& folders) {
    mpFolders->show(folders);
}

QString FFileNameGroup::name() const {
    return mpName->text();
}

QString FFileNameGroup::folders() const {
    return mpFolders->text();
}

void FFileNameGroup::commit() {
    mpFolders->commit();
}
