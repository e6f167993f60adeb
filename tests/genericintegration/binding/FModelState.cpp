#include "tests/genericintegration/binding/FModelState.h"

#include "host/core/FObjectManager.h"
#include "host/design/FDefinitionBase.h"
#include "host/design/FEntry.h"
#include "host/design/FParameter.h"
#include "host/run/FComputationResults.h"
#include "host/run/FExternComputation.h"
#include "tests/support/FModelTest.h"

#include <QSet>

#include <algorithm>

namespace {

QString labelOf(const FObject& object, int depth = 0);

/** The suppliers, sorted, without the results in use, which aren't part of the history. */
QString suppliersOf(const FObject& object, int depth) {
    QStringList labels;
    for (const FObject* supplier : object.getSuppliers()) {
        if (!dynamic_cast<const FComputationResults*>(supplier)) {
            labels.append(labelOf(*supplier, depth + 1));
        }
    }
    labels.sort();
    return labels.isEmpty() ? QString() : " <- {" + labels.join(", ") + '}';
}

QString labelOf(const FObject& object, int depth) {
    if (const auto* managed = dynamic_cast<const FManaged*>(&object)) {
        return '#' + QString::number(managed->getDbId());
    }
    const QString label = object.getClass() + ' ' + object.toExpressionString();
    return dynamic_cast<const FEntryBase*>(&object) || depth > 5 ? label : label + suppliersOf(object, depth);
}

/** Whether a value is computed from a run, whose results undo leaves as they are. */
bool isOfRun(const FObject& object, QSet<const FObject*>& seen) {
    if (seen.contains(&object)) {
        return false;
    }
    seen.insert(&object);
    const auto& suppliers = object.getSuppliers();
    return dynamic_cast<const FExternComputation*>(&object) || dynamic_cast<const FComputationResults*>(&object) ||
           std::any_of(suppliers.begin(), suppliers.end(),
                       [&seen](const FObject* next) { return isOfRun(*next, seen); });
}

QString worth(const FObject& object) {
    QSet<const FObject*> seen;
    if (isOfRun(object, seen)) {
        return QStringLiteral("of a run");
    }
    const FObject* value = object.getValueObject();
    return value ? labelOf(*value, 6) : QStringLiteral("nothing");
}

QString entriesText(const FEntryHolder& holder) {
    QString text;
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        const FEntryBase& base = *FEntryBase::of(handle);
        text += "  " + base.getFullName() + suppliersOf(base, 0);
        if (const auto* entry = dynamic_cast<const FEntry*>(&base)) {
            text += ' ' + entry->getValue().toHistoryString() + " = " + worth(*entry);
        }
        text += (base.getHolder() == &holder ? "\n" : " stands nowhere\n") + entriesText(base);
    }
    return text;
}

QString objectText(const FManaged& object) {
    QString text = labelOf(object) + ' ' + object.getClass() + ' ' + object.getName() + suppliersOf(object, 0) +
                   QStringLiteral(" %1 %2 %3\n")
                       .arg(object.isInProject())
                       .arg(object.isInUserConfig())
                       .arg(object.isUpdateOnDemand());
    if (const auto* parameter = dynamic_cast<const FParameter*>(&object)) {
        text += "  = " + worth(*parameter) + '\n';
    }
    const auto* holder = dynamic_cast<const FDefinitionBase*>(&object);
    return holder ? text + entriesText(*holder) : text;
}

/** Results come and go with runs, outside of the history. */
QList<const FManaged*> objectsOfHistory() {
    QList<const FManaged*> objects;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        if (!dynamic_cast<const FComputationResults*>(object)) {
            objects.append(object);
        }
    }
    return objects;
}

}  // namespace

QString modelState() {
    // First, since a definition drops files that are gone when it is saved.
    QString saved;
    QStringList names;
    for (const FManaged* object : objectsOfHistory()) {
        saved += FModelTest::saved(*object);
        names.append(object->getName());
    }
    names.sort();
    QString objects;
    // Twice, since an expression finds its dependencies when it is evaluated.
    for (int i = 0; i < 2; ++i) {
        objects.clear();
        for (const FManaged* object : objectsOfHistory()) {
            objects += objectText(*object);
        }
    }
    return saved + names.join(' ') + '\n' + objects;
}
