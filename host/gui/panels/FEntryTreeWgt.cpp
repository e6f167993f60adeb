#include "host/gui/panels/FEntryTreeWgt.h"

#include "host/core/FObjectManager.h"
#include "host/design/FEntryDef.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateLabel.h"
#include "host/gui/base/FWhyNot.h"
#include "host/gui/panels/FEntryChange.h"
#include "host/gui/panels/FEntryDelegate.h"
#include "host/gui/panels/FEntryTreeModel.h"
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

FEntryTreeWgt::FEntryTreeWgt(FNavigator& navigator, FEntryTreeModel* model, const Names& names,
                             const QList<double>& shares, QWidget* parent)
    : QWidget(parent),
      mNavigator(navigator),
      mpModel(model),
      mShares(shares),
      mpDelegate(new FEntryDelegate(this)),
      mpBar(new QToolBar(this)),
      mpView(new QTreeView(this)),
      mpDetails(new FStateLabel(FStateColor::State::Secondary, this)) {
    mpModel->setParent(this);
    mpBar->setObjectName(QString::fromLatin1(names.bar));
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    mpBar->setIconSize(QSize(size, size));
    mpAdd = makeAction(names.add, "list-add", QStringLiteral("&Add entry…"),
                       QStringLiteral("Adds an entry to the definition"), &FEntryTreeWgt::addEntry);
    mpRemove = makeAction(names.remove, "list-remove", QStringLiteral("Re&move entry"),
                          QStringLiteral("Removes the entry from the definition and all its configurations"),
                          &FEntryTreeWgt::removeEntry);
    mpRename =
        makeAction(names.rename, "edit-rename", QStringLiteral("Re&name entry"),
                   QStringLiteral("Renames the entry, also in the tags of templates"), &FEntryTreeWgt::renameEntry);
    makeView(names);
    mpDetails->setObjectName(QString::fromLatin1(names.details));
    mpDetails->setWordWrap(true);
    mpDetails->setTextFormat(Qt::RichText);
    mpDetails->setMargin(fontMetrics().height() / 4);
    mpDetails->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(mpDetails, &QLabel::linkActivated, this, &FEntryTreeWgt::openLink);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mpBar);
    column->addWidget(mpView, 1);
    column->addWidget(mpDetails);
    setFocusProxy(mpView);
    connect(mpModel, &QAbstractItemModel::modelAboutToBeReset, this, &FEntryTreeWgt::keepExpanded);
    connect(mpModel, &QAbstractItemModel::modelReset, this, &FEntryTreeWgt::restoreExpanded);
    connect(mpModel, &FEntryTreeModel::followed, this, &FEntryTreeWgt::refresh);
    connect(mpModel, &FEntryTreeModel::usesFound, this, &FEntryTreeWgt::refresh);
}

void FEntryTreeWgt::makeView(const Names& names) {
    mpView->setObjectName(QString::fromLatin1(names.tree));
    mpView->setAccessibleName(QString::fromLatin1(names.title));
    mpView->setModel(mpModel);
    mpView->setItemDelegate(mpDelegate);
    mpView->setUniformRowHeights(true);
    mpView->setAlternatingRowColors(true);
    mpView->setAllColumnsShowFocus(true);
    mpView->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed);
    mpView->setContextMenuPolicy(Qt::CustomContextMenu);
    mpView->installEventFilter(this);
    connect(mpView, &QTreeView::activated, this, &FEntryTreeWgt::editValue);
    new FEmptyHint(mpView, QStringLiteral("The definition has no entries yet. Press + to add one."));
    mpView->header()->setStretchLastSection(false);
    mpView->header()->setTextElideMode(Qt::ElideRight);
    mpView->viewport()->installEventFilter(this);
    connect(mpView, &QTreeView::customContextMenuRequested, this, &FEntryTreeWgt::openMenu);
    connect(mpView->selectionModel(), &QItemSelectionModel::currentChanged, this, &FEntryTreeWgt::refresh);
    connect(mpDelegate, &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
                Q_UNUSED(editor)
                if (hint == QAbstractItemDelegate::RevertModelCache) {
                    mpModel->forgetRefused(current());
                    refresh();
                }
            });
}

// The columns keep their shares of the width, which the user may change.
void FEntryTreeWgt::fitColumns(int width, int before) {
    QHeaderView* header = mpView->header();
    const bool isFirst = header->length() != before;
    int rest = width;
    for (int column = 0; column < mShares.size(); ++column) {
        const double share = isFirst ? mShares.at(column) : static_cast<double>(header->sectionSize(column)) / before;
        const int size = static_cast<int>(width * share);
        header->resizeSection(column, size);
        rest -= size;
    }
    header->resizeSection(mShares.size(), rest);
}

QAction* FEntryTreeWgt::newAction(const char* name, const char* icon, const QString& text, const QString& tip,
                                  std::function<void()> act) {
    auto* action = new QAction(FIcons::get(QString::fromLatin1(icon)), text, this);
    action->setObjectName(QString::fromLatin1(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
        commitEdit();
        act();
    });
    mpBar->addAction(action);
    return action;
}

void FEntryTreeWgt::startAnew() {
    mClosed.clear();
    mCurrent.clear();
}

bool FEntryTreeWgt::showEntry(const QString& path) {
    const QModelIndex index = mpModel->indexOf(path);
    mpView->setCurrentIndex(index);
    mpView->scrollTo(index);
    return index.isValid();
}

QModelIndex FEntryTreeWgt::current() const {
    return mpView->currentIndex();
}

void FEntryTreeWgt::commitEdit() {
    mpDelegate->commitOpen();
}

FPendingEdit::Refusal FEntryTreeWgt::refusal() const {
    const QModelIndex index = mpModel->refused();
    return index.isValid() ? Refusal{index.data(FEntryTreeModel::pathRole).toString(),
                                     index.data(FEntryTreeModel::faultRole).toString(), mpModel->textInModel(index)}
                           : Refusal();
}

QWidget* FEntryTreeWgt::focusRefused() {
    mpView->setFocus();
    mpView->setCurrentIndex(mpModel->refused());
    mpView->edit(mpView->currentIndex());
    return mpView;
}

// ---- actions ----

void FEntryTreeWgt::tell(const QString& fault) {
    if (!fault.isEmpty()) {
        mNavigator.showStatus(fault);
    }
}

void FEntryTreeWgt::addEntry() {
    FDefinition* definition = mpModel->definition();
    if (!definition) {
        return;
    }
    auto* dialog =
        new FNewEntryDialog(*definition, FEntryChange::freePath(*definition, mpModel->definitionOf(current())), this);
    connect(dialog, &FNewEntryDialog::added, this, [this](const QString& path) {
        mpModel->follow();
        showEntry(path);
    });
    dialog->open();
}

void FEntryTreeWgt::removeEntry() {
    const FEntryDef* entry = mpModel->definitionOf(current());
    if (entry && mpModel->definition()) {
        tell(FEntryChange::removeEntry(*mpModel->definition(), *entry));
    }
}

void FEntryTreeWgt::renameEntry() {
    if (current().isValid()) {
        mpView->edit(current().sibling(current().row(), FEntryTreeModel::nameColumn));
    }
}

void FEntryTreeWgt::openMenu(const QPoint& position) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("entryMenu"));
    menu->setToolTipsVisible(true);
    fillMenu(*menu);
    menu->popup(mpView->viewport()->mapToGlobal(position));
}

void FEntryTreeWgt::fillMenu(QMenu& menu) {
    menu.addActions({mpAdd, mpRename, mpRemove});
}

void FEntryTreeWgt::openLink(const QString& place) {
    const int colon = place.lastIndexOf(QLatin1Char(':'));
    if (FManaged* file = FObjectManager::instance()->find(place.left(colon))) {
        mNavigator.showTemplate(file, place.mid(colon + 1).toInt(), 1);
    }
}

void FEntryTreeWgt::editValue(const QModelIndex& index) {
    const QModelIndex value = index.sibling(index.row(), FEntryTreeModel::valueColumn);
    if (value.flags() & Qt::ItemIsEditable) {
        mpView->edit(value);
    }
}

// The window has actions with the same keys for the selected object.
bool FEntryTreeWgt::eventFilter(QObject* watched, QEvent* event) {
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

QString FEntryTreeWgt::whyNoEntry() const {
    return current().isValid() ? QString() : QStringLiteral("Select an entry first");
}

void FEntryTreeWgt::updateActions() {
    const QString noDefinition = mpModel->definition() ? QString() : QStringLiteral("There is no definition");
    const QString noEntry = !noDefinition.isEmpty()             ? noDefinition
                            : !whyNoEntry().isEmpty()           ? whyNoEntry()
                            : !mpModel->definitionOf(current()) ? QStringLiteral("The definition doesn't have it")
                                                                : QString();
    FWhyNot::apply(*mpAdd, noDefinition);
    FWhyNot::apply(*mpRemove, noEntry);
    FWhyNot::apply(*mpRename, noEntry);
}

void FEntryTreeWgt::refresh() {
    updateActions();
    // There is always a text, so that the first click doesn't change the height of the tree.
    QString text = QStringLiteral("Select an entry to see where it is used.");
    const FEntryDef* entry = mpModel->definitionOf(current());
    const QString fault = current().data(FEntryTreeModel::faultRole).toString();
    if (!fault.isEmpty()) {
        text = QChar(0x26a0) + QLatin1Char(' ') + fault.toHtmlEscaped();
    } else if (entry && !entry->isGroup()) {
        const QStringList uses = mpModel->usesOf(current());
        text = QStringLiteral("%1. ").arg(summaryOf(current())).toHtmlEscaped() +
               (uses.isEmpty() ? QStringLiteral("No template names it.")
                               : QStringLiteral("Used in %1").arg(linksTo(uses)));
    }
    // Blanks are part of a value for a fixed column.
    mpDetails->setText(QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>").arg(text));
}

void FEntryTreeWgt::keepExpanded() {
    mCurrent = current().isValid() ? current().data(FEntryTreeModel::pathRole).toString() : mCurrent;
    QList<QModelIndex> open{QModelIndex()};
    while (!open.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        for (int row = 0; row < mpModel->rowCount(parent); ++row) {
            const QModelIndex child = mpModel->index(row, 0, parent);
            if (mpModel->rowCount(child) == 0) {
                continue;
            }
            const QString path = child.data(FEntryTreeModel::pathRole).toString();
            if (mpView->isExpanded(child)) {
                mClosed.remove(path);
            } else {
                mClosed.insert(path);
            }
            open.append(child);
        }
    }
}

void FEntryTreeWgt::restoreExpanded() {
    mpView->expandAll();
    for (const QString& path : mClosed) {
        mpView->collapse(mpModel->indexOf(path));
    }
    if (!mCurrent.isEmpty()) {
        mpView->setCurrentIndex(mpModel->indexOf(mCurrent));
    }
    refresh();
}
