#include "host/gui/panels/FEntriesWgt.h"

#include "host/gui/base/FWhyNot.h"
#include "host/gui/fields/FScriptText.h"
#include "host/gui/panels/FEntryChange.h"
#include "host/gui/panels/FEntryModel.h"

#include <QAction>
#include <QMenu>

namespace {

constexpr double nameShare = 0.4;
constexpr double valueShare = 0.32;

}  // namespace

FEntriesWgt::FEntriesWgt(FNavigator& navigator, QWidget* parent) : FEntriesWgt(navigator, new FEntryModel, parent) {}

FEntriesWgt::FEntriesWgt(FNavigator& navigator, FEntryModel* model, QWidget* parent)
    : FEntryTreeWgt(navigator, model,
                    {"entryTree", "entryBar", "entryDetails", "addEntry", "removeEntry", "renameEntry", "Entries"},
                    {nameShare, valueShare}, parent),
      mpModel(model) {
    mpReset = makeAction("resetEntry", "edit-clear", QStringLiteral("Reset to &default"),
                         QStringLiteral("Gives the entry its default value"), &FEntriesWgt::resetEntry);
    mpAddOccurrence =
        makeAction("addOccurrence", "edit-table-insert-row-below", QStringLiteral("Add &occurrence"),
                   QStringLiteral("Adds a further occurrence of the entry or group"), &FEntriesWgt::addOccurrence);
    mpRemoveOccurrence =
        makeAction("removeOccurrence", "edit-table-delete-row", QStringLiteral("Remove o&ccurrence"),
                   QStringLiteral("Removes the last occurrence of the entry or group"), &FEntriesWgt::removeOccurrence);
    refresh();
}

void FEntriesWgt::setConfiguration(FConfiguration* configuration) {
    if (configuration != mpModel->configuration()) {
        startAnew();
    }
    mpModel->setConfiguration(configuration);
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

void FEntriesWgt::fillMenu(QMenu& menu) {
    menu.addActions({mpReset, mpAddOccurrence, mpRemoveOccurrence});
    menu.addSeparator();
    FEntryTreeWgt::fillMenu(menu);
}

void FEntriesWgt::updateActions() {
    FEntryTreeWgt::updateActions();
    const FEntry* entry = mpModel->entryAt(current());
    const QString none = whyNoEntry();
    FWhyNot::apply(*mpReset, !none.isEmpty()            ? none
                             : entry->isGroup()         ? QStringLiteral("A group has no value")
                             : entry->hasDefaultValue() ? QStringLiteral("It has its default value")
                                                        : QString());
    FWhyNot::apply(*mpAddOccurrence, !none.isEmpty() ? none
                                     : FEntryChange::mayAddOccurrence(*entry)
                                         ? QString()
                                         : QStringLiteral("The definition allows no further one"));
    FWhyNot::apply(*mpRemoveOccurrence, !none.isEmpty() ? none
                                        : FEntryChange::mayRemoveOccurrence(*entry)
                                            ? QString()
                                            : QStringLiteral("The definition asks for those that there are"));
}

QString FEntriesWgt::summaryOf(const QModelIndex& index) const {
    const FEntry& entry = *mpModel->entryAt(index);
    const QString value = FScriptText::evaluated(entry.getValue());
    return QStringLiteral("%1 → %2").arg(entry.getFullName(),
                                         value.isEmpty() ? FScriptText::of(entry.getValue()) : value);
}
