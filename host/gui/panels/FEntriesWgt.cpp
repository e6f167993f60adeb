#include "host/gui/panels/FEntriesWgt.h"

#include "host/core/FObjectManager.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateLabel.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/panels/FEntryChange.h"
#include "host/gui/panels/FEntryDelegate.h"
#include "host/gui/panels/FEntryModel.h"
#include "host/gui/panels/FNewEntryDialog.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QResizeEvent>
#include <QStyle>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int mostShownUses = 6;

/** The places as links, each file named once. */
QString linksTo(const QStringList& places) {
    QStringList links;
    QString lastFile;
    for (const QString& place : places.mid(0, mostShownUses)) {
        const int colon = place.lastIndexOf(QLatin1Char(':'));
        const QString file = place.left(colon);
        const QString text = file == lastFile ? place.mid(colon + 1) : place;
        links.append(QStringLiteral("<a href=\"%1\">%2</a>").arg(place.toHtmlEscaped(), text.toHtmlEscaped()));
        lastFile = file;
    }
    const QString more = places.size() > mostShownUses ? QStringLiteral(" …") : QString();
    return links.join(QStringLiteral(", ")) + more;
}

}  // namespace

FEntriesWgt::FEntriesWgt(FNavigator& navigator, QWidget* parent)
    : QWidget(parent),
      mNavigator(navigator),
      mpModel(new FEntryModel),
      mpDelegate(new FEntryDelegate(this)),
      mpView(new QTreeView(this)),
      mpDetails(new FStateLabel(FStateColor::State::Secondary, this)) {
    mpModel->setParent(this);
    auto* bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("entryBar"));
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    bar->setIconSize(QSize(size, size));
    mpAdd = makeAction("addEntry", "list-add", QStringLiteral("&Add entry…"),
                       QStringLiteral("Adds an entry to the definition"), &FEntriesWgt::addEntry);
    mpRemove = makeAction("removeEntry", "list-remove", QStringLiteral("Re&move entry"),
                          QStringLiteral("Removes the entry from the definition and all its configurations"),
                          &FEntriesWgt::removeEntry);
    mpRename =
        makeAction("renameEntry", "edit-rename", QStringLiteral("Re&name entry"),
                   QStringLiteral("Renames the entry, also in the tags of templates"), &FEntriesWgt::renameEntry);
    mpReset = makeAction("resetEntry", "edit-clear", QStringLiteral("Reset to &default"),
                         QStringLiteral("Gives the entry its default value"), &FEntriesWgt::resetEntry);
    mpAddOccurrence =
        makeAction("addOccurrence", "edit-table-insert-row-below", QStringLiteral("Add &occurrence"),
                   QStringLiteral("Adds a further occurrence of the entry or group"), &FEntriesWgt::addOccurrence);
    mpRemoveOccurrence =
        makeAction("removeOccurrence", "edit-table-delete-row", QStringLiteral("Remove o&ccurrence"),
                   QStringLiteral("Removes the last occurrence of the entry or group"), &FEntriesWgt::removeOccurrence);
    bar->addActions({mpAdd, mpRemove, mpRename, mpReset, mpAddOccurrence, mpRemoveOccurrence});
    makeView();
    mpDetails->setObjectName(QStringLiteral("entryDetails"));
    mpDetails->setWordWrap(true);
    mpDetails->setTextFormat(Qt::RichText);
    mpDetails->setMargin(fontMetrics().height() / 4);
    mpDetails->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(mpDetails, &QLabel::linkActivated, this, &FEntriesWgt::openLink);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar);
    column->addWidget(mpView, 1);
    column->addWidget(mpDetails);
    setFocusProxy(mpView);
    connect(mpModel, &QAbstractItemModel::modelAboutToBeReset, this, &FEntriesWgt::keepExpanded);
    connect(mpModel, &QAbstractItemModel::modelReset, this, &FEntriesWgt::restoreExpanded);
    connect(mpModel, &FEntryModel::followed, this, &FEntriesWgt::refresh);
    connect(mpModel, &FEntryModel::usesFound, this, &FEntriesWgt::refresh);
    refresh();
}

void FEntriesWgt::makeView() {
    mpView->setObjectName(QStringLiteral("entryTree"));
    mpView->setAccessibleName(QStringLiteral("Entries"));
    mpView->setModel(mpModel);
    mpView->setItemDelegate(mpDelegate);
    mpView->setUniformRowHeights(true);
    mpView->setAlternatingRowColors(true);
    mpView->setAllColumnsShowFocus(true);
    mpView->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed);
    mpView->setContextMenuPolicy(Qt::CustomContextMenu);
    mpView->installEventFilter(this);
    connect(mpView, &QTreeView::activated, this, &FEntriesWgt::editValue);
    new FEmptyHint(mpView, QStringLiteral("The definition has no entries yet. Press + to add one."));
    mpView->header()->setStretchLastSection(false);
    mpView->header()->setTextElideMode(Qt::ElideRight);
    mpView->viewport()->installEventFilter(this);
    connect(mpView, &QTreeView::customContextMenuRequested, this, &FEntriesWgt::openMenu);
    connect(mpView->selectionModel(), &QItemSelectionModel::currentChanged, this, &FEntriesWgt::refresh);
    connect(mpDelegate, &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
                Q_UNUSED(editor)
                if (hint == QAbstractItemDelegate::RevertModelCache) {
                    mpModel->forgetRefused(current());
                }
            });
}

// The columns keep their shares of the width, which the user may change.
void FEntriesWgt::fitColumns(int width, int before) {
    constexpr double nameShare = 0.4;
    constexpr double valueShare = 0.32;
    QHeaderView* header = mpView->header();
    const bool isFirst = header->length() != before;
    const auto share = [&](int column, double usual) {
        return static_cast<int>(width * (isFirst ? usual : static_cast<double>(header->sectionSize(column)) / before));
    };
    const int name = share(FEntryModel::nameColumn, nameShare);
    const int value = share(FEntryModel::valueColumn, valueShare);
    header->resizeSection(FEntryModel::nameColumn, name);
    header->resizeSection(FEntryModel::valueColumn, value);
    header->resizeSection(FEntryModel::resultColumn, width - name - value);
}

QAction* FEntriesWgt::makeAction(const char* name, const char* icon, const QString& text, const QString& tip,
                                 void (FEntriesWgt::*act)()) {
    auto* action = new QAction(FIcons::get(QString::fromLatin1(icon)), text, this);
    action->setObjectName(QString::fromLatin1(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, [this, act] {
        commitEdit();
        (this->*act)();
    });
    return action;
}

void FEntriesWgt::setConfiguration(FConfiguration* configuration) {
    if (configuration != mpModel->configuration()) {
        mClosed.clear();
        mCurrent.clear();
    }
    mpModel->setConfiguration(configuration);
}

bool FEntriesWgt::showEntry(const QString& path) {
    const QModelIndex index = mpModel->indexOf(path);
    mpView->setCurrentIndex(index);
    mpView->scrollTo(index);
    return index.isValid();
}

QModelIndex FEntriesWgt::current() const {
    return mpView->currentIndex();
}

void FEntriesWgt::commitEdit() {
    mpDelegate->commitOpen();
}

// ---- actions ----

void FEntriesWgt::tell(const QString& fault) {
    if (!fault.isEmpty()) {
        mNavigator.showStatus(fault);
    }
}

void FEntriesWgt::addEntry() {
    FConfiguration* configuration = mpModel->configuration();
    if (!configuration) {
        return;
    }
    auto* dialog =
        new FNewEntryDialog(*configuration, FEntryChange::freePath(*configuration, mpModel->entryAt(current())), this);
    connect(dialog, &FNewEntryDialog::added, this, [this](const QString& path) {
        mpModel->setConfiguration(mpModel->configuration());
        showEntry(path);
    });
    dialog->open();
}

void FEntriesWgt::removeEntry() {
    FEntry* entry = mpModel->entryAt(current());
    if (entry && mpModel->configuration()) {
        tell(FEntryChange::removeEntry(*mpModel->configuration(), *entry));
    }
}

void FEntriesWgt::renameEntry() {
    if (current().isValid()) {
        mpView->edit(current().sibling(current().row(), FEntryModel::nameColumn));
    }
}

void FEntriesWgt::resetEntry() {
    if (FEntry* entry = mpModel->entryAt(current())) {
        mpModel->forgetRefused(current());
        tell(FEntryChange::reset(*entry));
    }
}

void FEntriesWgt::addOccurrence() {
    if (FEntry* entry = mpModel->entryAt(current())) {
        tell(FEntryChange::addOccurrence(*entry));
    }
}

void FEntriesWgt::removeOccurrence() {
    if (FEntry* entry = mpModel->entryAt(current())) {
        tell(FEntryChange::removeOccurrence(*entry));
    }
}

void FEntriesWgt::openMenu(const QPoint& position) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("entryMenu"));
    menu->addActions({mpReset, mpAddOccurrence, mpRemoveOccurrence});
    menu->addSeparator();
    menu->addActions({mpAdd, mpRename, mpRemove});
    menu->popup(mpView->viewport()->mapToGlobal(position));
}

void FEntriesWgt::openLink(const QString& place) {
    const int colon = place.lastIndexOf(QLatin1Char(':'));
    if (FManaged* file = FObjectManager::instance()->find(place.left(colon))) {
        mNavigator.showTemplate(file, place.mid(colon + 1).toInt(), 1);
    }
}

void FEntriesWgt::editValue(const QModelIndex& index) {
    const QModelIndex value = index.sibling(index.row(), FEntryModel::valueColumn);
    if (value.flags() & Qt::ItemIsEditable) {
        mpView->edit(value);
    }
}

// The window has actions with the same keys for the selected object.
bool FEntriesWgt::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mpView->viewport() && event->type() == QEvent::Resize) {
        const auto* resize = static_cast<const QResizeEvent*>(event);
        fitColumns(resize->size().width(), resize->oldSize().width());
    }
    if (watched == mpView && (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        QAction* action = key.modifiers() != Qt::NoModifier ? nullptr
                          : key.key() == Qt::Key_F2         ? mpRename
                          : key.key() == Qt::Key_Delete     ? mpRemove
                                                            : nullptr;
        if (action) {
            event->accept();
            if (event->type() == QEvent::KeyPress) {
                action->trigger();
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

// ---- what is shown ----

void FEntriesWgt::refresh() {
    const FEntry* entry = mpModel->entryAt(current());
    const bool hasDefinition = mpModel->configuration() && mpModel->configuration()->getDefinition();
    mpAdd->setEnabled(hasDefinition);
    mpRemove->setEnabled(hasDefinition && entry);
    mpRename->setEnabled(hasDefinition && entry);
    mpReset->setEnabled(entry && !entry->isGroup() && !entry->hasDefaultValue());
    mpAddOccurrence->setEnabled(entry && FEntryChange::mayAddOccurrence(*entry));
    mpRemoveOccurrence->setEnabled(entry && FEntryChange::mayRemoveOccurrence(*entry));
    // There is always a text, so that the first click doesn't change the height of the tree.
    QString text = QStringLiteral("Select an entry to see where it is used.");
    if (entry && !entry->isGroup()) {
        const QString fault = current().data(FEntryModel::faultRole).toString();
        const QString value = FScriptText::evaluated(entry->getValue());
        const QStringList uses = mpModel->usesOf(*entry);
        text = !fault.isEmpty()
                   ? QChar(0x26a0) + QLatin1Char(' ') + fault.toHtmlEscaped()
                   : QStringLiteral("%1 → %2. ")
                             .arg(entry->getFullName(), value.isEmpty() ? FScriptText::of(entry->getValue()) : value)
                             .toHtmlEscaped() +
                         (uses.isEmpty() ? QStringLiteral("No template names it.")
                                         : QStringLiteral("Used in %1").arg(linksTo(uses)));
    }
    mpDetails->setText(text);
}

void FEntriesWgt::keepExpanded() {
    mCurrent = current().isValid() ? current().data(FEntryModel::pathRole).toString() : mCurrent;
    QList<QModelIndex> open{QModelIndex()};
    while (!open.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        for (int row = 0; row < mpModel->rowCount(parent); ++row) {
            const QModelIndex child = mpModel->index(row, 0, parent);
            if (mpModel->rowCount(child) == 0) {
                continue;
            }
            const QString path = child.data(FEntryModel::pathRole).toString();
            if (mpView->isExpanded(child)) {
                mClosed.remove(path);
            } else {
                mClosed.insert(path);
            }
            open.append(child);
        }
    }
}

void FEntriesWgt::restoreExpanded() {
    mpView->expandAll();
    for (const QString& path : mClosed) {
        mpView->collapse(mpModel->indexOf(path));
    }
    if (!mCurrent.isEmpty()) {
        mpView->setCurrentIndex(mpModel->indexOf(mCurrent));
    }
    refresh();
}
