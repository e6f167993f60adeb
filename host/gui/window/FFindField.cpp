#include "host/gui/window/FFindField.h"

#include "host/core/FObjectManager.h"
#include "host/core/FSelectionSet.h"
#include "host/design/FConfiguration.h"
#include "host/gui/base/FClassLook.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/window/FActions.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/script/FCmdManager.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QAction>
#include <QCompleter>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QTimer>

namespace {

constexpr int choiceRole = Qt::UserRole;
constexpr int mostEntries = 20000;

}  // namespace

FFindField::FFindField(FMainWindow& window)
    : QLineEdit(&window), mWindow(window), mpModel(new QStandardItemModel(this)), mpCompleter(new QCompleter(this)) {
    setObjectName(QStringLiteral("find"));
    setAccessibleName(QStringLiteral("Find an object, entry or command"));
    setPlaceholderText(QStringLiteral("Find object, entry, command…  Ctrl+K"));
    setClearButtonEnabled(true);
    setMaximumWidth(fontMetrics().horizontalAdvance(placeholderText()) + 3 * fontMetrics().height());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    mpCompleter->setModel(mpModel);
    mpCompleter->setCaseSensitivity(Qt::CaseInsensitive);
    mpCompleter->setFilterMode(Qt::MatchContains);
    constexpr int visibleRows = 14;
    mpCompleter->setMaxVisibleItems(visibleRows);
    mpCompleter->popup()->setObjectName(QStringLiteral("findResults"));
    mpCompleter->popup()->setAccessibleName(QStringLiteral("What was found"));
    constexpr int characters = 64;
    mpCompleter->popup()->setMinimumWidth(characters * fontMetrics().averageCharWidth());
    mpCompleter->popup()->installEventFilter(this);
    setCompleter(mpCompleter);
    // Not with the field as receiver: without the focus, a field cuts all connections from its completer to itself.
    connect(mpCompleter, QOverload<const QModelIndex&>::of(&QCompleter::activated), mpModel,
            [this](const QModelIndex& index) { choose(index); });
}

void FFindField::start() {
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void FFindField::focusInEvent(QFocusEvent* event) {
    // Not when the list of what was found closes.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        collect();
    }
    QLineEdit::focusInEvent(event);
}

// The list is wider than the field, which is at the right edge of the window.
bool FFindField::eventFilter(QObject* watched, QEvent* event) {
    QWidget* list = mpCompleter->popup();
    if (watched == list && (event->type() == QEvent::Move || event->type() == QEvent::Resize)) {
        const int right = mapToGlobal(QPoint(width(), 0)).x();
        if (list->x() + list->width() > right) {
            list->move(right - list->width(), list->y());
        }
    }
    return QLineEdit::eventFilter(watched, event);
}

void FFindField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        clear();
        mWindow.setFocus();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void FFindField::collect() {
    mpModel->clear();
    mChoices.clear();
    addActions();
    addObjects();
    addEntries();
    addCommands();
}

void FFindField::add(const QIcon& icon, const QString& name, const QString& kind, std::function<void()> choose) {
    auto* item = new QStandardItem(icon, QStringLiteral("%1 (%2)").arg(name, kind));
    item->setData(static_cast<int>(mChoices.size()), choiceRole);
    mpModel->appendRow(item);
    mChoices.push_back(std::move(choose));
}

void FFindField::addActions() {
    for (QAction* action : mWindow.actions().all()) {
        if (action->isEnabled()) {
            const QString keys = action->shortcut().toString(QKeySequence::NativeText);
            add(action->icon(), action->text().remove(QLatin1Char('&')),
                keys.isEmpty() ? QStringLiteral("action") : keys, [action] { action->trigger(); });
        }
    }
}

void FFindField::addObjects() {
    for (FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        if (!object->isDefault() && object->getSystemLevel() <= 1) {
            const FExpr<FManaged> handle(object);
            add(FClassLook::iconOf(object), object->getName(), FClassLook::wordFor(object), [this, handle] {
                if (handle) {
                    mWindow.showObject(handle.ptr());
                }
            });
        }
    }
}

void FFindField::addEntries() {
    for (FManaged* object : FObjectManager::instance()->getManaged(FConfiguration::null())) {
        const FExpr<FManaged> handle(object);
        const QMap<QString, FExpr<FEntryBase>>& entries = dynamic_cast<FConfiguration&>(*object).getEntryMap();
        for (auto entry = entries.begin(); entry != entries.end() && mpModel->rowCount() < mostEntries; ++entry) {
            const QString path = entry.key();
            add(FIcons::get(QStringLiteral("configuration")), path,
                QStringLiteral("entry of %1").arg(object->getName()), [this, handle, path] {
                    if (handle) {
                        mWindow.showEntry(handle.ptr(), path);
                        mWindow.panels().raise(QStringLiteral("editor"));
                    }
                });
        }
    }
}

void FFindField::addCommands() {
    QStringList names;
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        if (!row->presentation.hidden) {
            names.append(row->name);
        }
    }
    names.removeDuplicates();
    const QIcon icon = FIcons::get(QStringLiteral("help-contents"));
    for (const QString& name : names) {
        add(icon, name, QStringLiteral("command"), [this, name] { mWindow.showHelp(name); });
    }
}

void FFindField::choose(const QModelIndex& index) {
    const std::size_t choice = static_cast<std::size_t>(index.data(choiceRole).toInt());
    if (!index.isValid() || choice >= mChoices.size()) {
        return;
    }
    // Later, since the field still puts the text of the choice into itself, and what can be found is collected again.
    QTimer::singleShot(0, this, [this, function = mChoices[choice]] {
        clear();
        // Moves the focus first, so that the choice can move it elsewhere.
        mWindow.setFocus();
        function();
    });
}
