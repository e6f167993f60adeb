#include "genericintegration/connector/dialogs/FSampleList.h"

#include "genericintegration/connector/dialogs/FDropList.h"
#include "genericintegration/connector/layout/FItemRequests.h"
#include "host/core/FUserInterface.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FToolButton.h"
#include "host/run/FPathManager.h"

#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>

namespace {

constexpr int pathRole = Qt::UserRole;

/** Whether the file can become a template without a question: a text that isn't too large. */
bool isUsualTemplate(const QString& path) {
    constexpr int looked = 4096;  // bytes
    QFile file(path);
    return FItemRequests::checkFileSize(file.size(), QString()).isEmpty() && file.open(QIODevice::ReadOnly) &&
           !file.read(looked).contains('\0');
}

}  // namespace

FSampleList::FSampleList(const QString& id, const QString& label, const QString& hint, bool isCheckable,
                         QWidget* parent)
    : QWidget(parent), mLabel(label), mIsCheckable(isCheckable), mpList(new FDropList(this)) {
    setObjectName(id);
    mpList->setObjectName(id + QStringLiteral("List"));
    mpList->setAccessibleName(label);
    constexpr int lines = 4;
    mpList->setMinimumHeight(lines * fontMetrics().lineSpacing());
    new FEmptyHint(mpList, hint);
    auto* buttons = new QVBoxLayout;
    const auto add = [&](const QString& name, const char* icon, const QString& tip, void (FSampleList::*act)()) {
        connect(FToolButton::addTo(*buttons, id + name, QString::fromLatin1(icon), tip), &FToolButton::clicked, this,
                act);
    };
    add(QStringLiteral("Add"), "list-add", QStringLiteral("Select %1…").arg(label.toLower()), &FSampleList::askFiles);
    add(QStringLiteral("Remove"), "list-remove", QStringLiteral("Take the selected files out of the list"),
        &FSampleList::removeSelected);
    buttons->addStretch(1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(mpList, 1);
    row->addLayout(buttons);
    setFocusProxy(mpList);
    connect(mpList, &FDropList::dropped, this, &FSampleList::addFiles);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(mpList->model(), signal, this, &FSampleList::changed);
    }
}

void FSampleList::addFiles(const QStringList& added) {
    for (const QString& path : added) {
        const QFileInfo file(path);
        if (paths().contains(file.absoluteFilePath())) {
            continue;
        }
        auto* item = new QListWidgetItem(FIcons::get(QStringLiteral("text-x-generic")), file.fileName(), mpList);
        item->setData(pathRole, file.absoluteFilePath());
        item->setToolTip(file.absoluteFilePath());
        if (mIsCheckable) {
            item->setText(QStringLiteral("%1 (template)").arg(file.fileName()));
            item->setCheckState(isUsualTemplate(path) ? Qt::Checked : Qt::Unchecked);
        }
    }
}

QStringList FSampleList::paths() const {
    QStringList all;
    for (int row = 0; row < mpList->count(); ++row) {
        all.append(mpList->item(row)->data(pathRole).toString());
    }
    return all;
}

bool FSampleList::isChecked(int row) const {
    return mpList->item(row)->checkState() == Qt::Checked;
}

void FSampleList::askFiles() {
    addFiles(FUserInterface::instance()->askOpenFiles(QStringLiteral("Select %1").arg(mLabel.toLower()),
                                                      FPathManager::getProjectDir()));
}

void FSampleList::removeSelected() {
    qDeleteAll(mpList->selectedItems());
}
