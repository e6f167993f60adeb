#include "host/gui/panels/FObjectTreeWgt.h"

#include "host/core/FChanges.h"
#include "host/core/FManaged.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FCommandCall.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FObjectPages.h"
#include "host/gui/panels/FDeleteQuestion.h"
#include "host/gui/panels/FNewObjectMenu.h"
#include "host/gui/panels/FObjectNameDelegate.h"
#include "host/gui/panels/FObjectTreeModel.h"
#include "host/run/FResultsGeneric.h"
#include "host/script/FAttributeQuery.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

FObjectTreeWgt::FObjectTreeWgt(FNavigator& navigator)
    : mNavigator(navigator),
      mpModel(new FObjectTreeModel),
      mpFilter(new QSortFilterProxyModel(this)),
      mpSearch(new QLineEdit(this)),
      mpView(new QTreeView(this)) {
    mpModel->setParent(this);
    // Rows that go, or move below another one, are no choice of the user's. Connected before the filter passes them on.
    connect(mpModel, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { mIsSelecting = true; });
    mpFilter->setSourceModel(mpModel);
    connect(mpModel, &QAbstractItemModel::rowsRemoved, this, [this] {
        mIsSelecting = false;
        mShowSelection.request();
    });
    mpFilter->setRecursiveFilteringEnabled(true);
    mpFilter->setFilterRole(FObjectTreeModel::nameRole);
    mpFilter->setFilterCaseSensitivity(Qt::CaseInsensitive);

    mpSearch->setObjectName(QStringLiteral("objectFilter"));
    mpSearch->setPlaceholderText(QStringLiteral("Filter"));
    mpSearch->setAccessibleName(QStringLiteral("Filter objects by name"));
    mpSearch->setClearButtonEnabled(true);
    mpView->setObjectName(QStringLiteral("objectTree"));
    mpView->setAccessibleName(QStringLiteral("Objects"));
    mpView->setModel(mpFilter);
    mpView->setHeaderHidden(true);
    mpView->setUniformRowHeights(true);
    mpView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mpView->setEditTriggers(QAbstractItemView::EditKeyPressed);
    mpView->setItemDelegate(new FObjectNameDelegate(mpView));
    mpView->setDragEnabled(true);
    mpView->setDragDropMode(QAbstractItemView::DragOnly);
    mpView->setContextMenuPolicy(Qt::CustomContextMenu);
    mpView->setExpandsOnDoubleClick(false);
    new FEmptyHint(mpView, QStringLiteral("The objects of the project appear here"));

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(mpSearch);
    column->addWidget(mpView, 1);

    connect(mpSearch, &QLineEdit::textChanged, this, [this](const QString& text) {
        mpFilter->setFilterFixedString(text);
        text.isEmpty() ? showSelection() : mpView->expandAll();
    });
    connect(mpView->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FObjectTreeWgt::takeSelection);
    connect(FSelectionSet::instance(), &FSelectionSet::changed, this, &FObjectTreeWgt::showSelection);
    connect(FSelectionSet::instance(), &FSelectionSet::selectionReplaced, this, &FObjectTreeWgt::showSelection);
    connect(mpView, &QTreeView::doubleClicked, this, &FObjectTreeWgt::doubleClicked);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* enter = new QShortcut(key, mpView);
        enter->setContext(Qt::WidgetShortcut);
        connect(enter, &QShortcut::activated, this, [this] { doubleClicked(mpView->currentIndex()); });
    }
    connect(mpView, &QTreeView::customContextMenuRequested, this, &FObjectTreeWgt::openMenu);
    connect(mpModel, &QAbstractItemModel::modelAboutToBeReset, this, &FObjectTreeWgt::keepExpanded);
    connect(mpModel, &QAbstractItemModel::modelReset, this, &FObjectTreeWgt::restoreExpanded);
    connect(mpModel, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& parent) {
        mpView->expand(mpFilter->mapFromSource(parent));
        showSelection();
    });
    connect(mpModel, &FObjectTreeModel::nameAdjusted, this, [this](const QString& wanted, const QString& given) {
        mNavigator.showStatus(QStringLiteral("\"%1\" is taken; the name is now \"%2\"").arg(wanted, given));
    });
    // Values follow other objects, which aren't reported.
    const FChanges* changes = FChanges::instance();
    const auto repaint = [this] { mpView->viewport()->update(); };
    connect(changes, &FChanges::stepDone, this, repaint);
    connect(changes, &FChanges::stepUndone, this, repaint);
    connect(changes, &FChanges::stepRedone, this, repaint);
    mpView->expandToDepth(1);
}

// ---- selection ----

QModelIndex FObjectTreeWgt::shownIndexOf(const FManaged* object) const {
    return mpFilter->mapFromSource(mpModel->indexOf(object));
}

void FObjectTreeWgt::takeSelection() {
    if (mIsSelecting) {
        return;
    }
    QList<FExpr<FObject>> objects;
    for (const QModelIndex& index : mpView->selectionModel()->selectedRows()) {
        if (const FManaged* object = mpModel->objectAt(mpFilter->mapToSource(index))) {
            objects.append(FExpr<FObject>(object));
        }
    }
    mIsSelecting = true;
    FSelectionSet::instance()->set(objects);
    mIsSelecting = false;
}

void FObjectTreeWgt::showSelection() {
    if (mIsSelecting) {
        return;
    }
    QItemSelection selection;
    QModelIndex last;
    for (const FExpr<FObject>& selected : FSelectionSet::instance()->getObjects()) {
        const QModelIndex index = shownIndexOf(dynamic_cast<const FManaged*>(selected.getStored()));
        if (index.isValid()) {
            selection.select(index, index);
            last = index;
        }
    }
    mIsSelecting = true;
    mpView->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (last.isValid()) {
        mpView->selectionModel()->setCurrentIndex(last, QItemSelectionModel::NoUpdate);
    }
    mIsSelecting = false;
}

void FObjectTreeWgt::reveal(const FManaged* object) {
    mpModel->follow();
    QModelIndex index = shownIndexOf(object);
    if (!index.isValid() && !mpSearch->text().isEmpty()) {
        mpSearch->clear();
        index = shownIndexOf(object);
    }
    if (index.isValid()) {
        mpView->scrollTo(index);
    }
}

// ---- actions ----

void FObjectTreeWgt::renameSelected() {
    const QList<FManaged*> objects = selectedObjects();
    if (objects.size() == 1) {
        reveal(objects.first());
        mpView->edit(shownIndexOf(objects.first()));
    }
}

// The row appears from the event loop.
void FObjectTreeWgt::startNaming(const FExpr<FManaged>& object) {
    QTimer::singleShot(0, this, [this, object] {
        if (object) {
            FSelectionSet::instance()->set({FExpr<FObject>(object)});
            showSelection();
            reveal(object.ptr());
            renameSelected();
        }
    });
}

QList<FManaged*> FObjectTreeWgt::selectedObjects() {
    QList<FManaged*> objects;
    for (const FExpr<FObject>& selected : FSelectionSet::instance()->getObjects()) {
        auto* object = dynamic_cast<FManaged*>(selected.getStored());
        if (!object) {
            return {};
        }
        objects.append(object);
    }
    return objects;
}

void FObjectTreeWgt::destroySelected() {
    QList<FExpr<FManaged>> objects;
    for (const FManaged* object : selectedObjects()) {
        objects.append(FExpr<FManaged>(object));
    }
    if (objects.isEmpty() || !FDeleteQuestion::ask(objects)) {
        return;
    }
    const FUserStep step(QStringLiteral("delete"));
    for (const FExpr<FManaged>& object : objects) {
        // One may go with another.
        if (object) {
            FManaged::destroy(object.ptr());
        }
    }
}

void FObjectTreeWgt::doubleClicked(const QModelIndex& index) {
    FManaged* object = mpModel->objectAt(mpFilter->mapToSource(index));
    if (!object) {
        mpView->setExpanded(index, !mpView->isExpanded(index));
    } else if (!object->doubleClickedInTree()) {
        open(object);
    }
}

void FObjectTreeWgt::open(FManaged* object) {
    if (const auto results = FExpr<FResultsGeneric>(object)) {
        mNavigator.showResults(results);
    } else if (object) {
        mNavigator.showTemplate(object, 0, 0);
    }
}

void FObjectTreeWgt::fillMenu(QMenu& menu) {
    const FExpr<FObjectList> selected = FSelectionSet::instance()->toList();
    const FAttributeQuery query(selected);
    for (const FCmdRow* row : query.getMenuMembers({})) {
        menu.addAction(FIcons::get(row->presentation.menuIcon), row->presentation.menuEntry,
                       [row, selected] { FCommandCall::execute(*row, selected); });
    }
    FNewObjectMenu::append(menu, window(), [this](FManaged* object) { startNaming(FExpr<FManaged>(object)); });
    menu.addSeparator();
    if (selected->count() == 1) {
        const FExpr<FManaged> object(selected->at(0));
        menu.addAction(FIcons::get(QStringLiteral("document-edit")), QStringLiteral("&Open"), this,
                       [this, object] { open(object.ptr()); })
            ->setEnabled(FObjectPages::has(object.ptr()) || FExpr<FResultsGeneric>(object));
    }
    const int objects = selectedObjects().size();
    menu.addAction(FIcons::get(QStringLiteral("edit-rename")), QStringLiteral("&Rename"), this,
                   &FObjectTreeWgt::renameSelected)
        ->setEnabled(objects == 1);
    menu.addAction(FIcons::get(QStringLiteral("edit-delete")), QStringLiteral("&Delete"), [] { destroySelected(); })
        ->setEnabled(objects > 0);
    menu.addSeparator();
    menu.addAction(FIcons::get(QStringLiteral("help-contents")), QStringLiteral("&Help on this class"),
                   [this] {
                       const QList<FManaged*> present = selectedObjects();
                       if (!present.isEmpty()) {
                           mNavigator.showHelp(FClassLook::helpTopicOf(*present.first()));
                       }
                   })
        ->setEnabled(objects > 0);
}

void FObjectTreeWgt::openMenu(const QPoint& position) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("objectMenu"));
    fillMenu(*menu);
    menu->popup(mpView->viewport()->mapToGlobal(position));
}

// ---- open branches ----

void FObjectTreeWgt::keepExpanded() {
    mExpanded.clear();
    QList<QModelIndex> open{QModelIndex()};
    while (!open.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        for (int row = 0; row < mpFilter->rowCount(parent); ++row) {
            const QModelIndex child = mpFilter->index(row, 0, parent);
            if (mpView->isExpanded(child)) {
                mExpanded.insert(child.data(FObjectTreeModel::nameRole).toString());
                open.append(child);
            }
        }
    }
}

void FObjectTreeWgt::restoreExpanded() {
    constexpr int few = 200;
    const bool isNew = mExpanded.isEmpty();
    QList<QModelIndex> closed{QModelIndex()};
    while (!closed.isEmpty()) {
        const QModelIndex parent = closed.takeLast();
        for (int row = 0; row < mpFilter->rowCount(parent); ++row) {
            const QModelIndex child = mpFilter->index(row, 0, parent);
            const bool isSmall = isNew && mpFilter->rowCount(child) <= few;
            if (isSmall || mExpanded.contains(child.data(FObjectTreeModel::nameRole).toString())) {
                mpView->expand(child);
                closed.append(child);
            }
        }
    }
    showSelection();
}
