#include "host/gui/base/FPartsAccessible.h"

int FPartsAccessible::childCount() const {
    return parts().size();
}

QAccessibleInterface* FPartsAccessible::child(int index) const {
    return QAccessible::queryAccessibleInterface(parts().value(index));
}

int FPartsAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child ? parts().indexOf(child->object()) : -1;
}

template <class Fits>
QAccessibleInterface* FPartsAccessible::find(const Fits& fits) const {
    for (QObject* part : parts()) {
        QAccessibleInterface* found = QAccessible::queryAccessibleInterface(part);
        if (found && fits(*found)) {
            return found;
        }
    }
    return nullptr;
}

QAccessibleInterface* FPartsAccessible::childAt(int x, int y) const {
    return find([x, y](const QAccessibleInterface& part) { return part.rect().contains(x, y); });
}

QAccessibleInterface* FPartsAccessible::focusChild() const {
    return find([](const QAccessibleInterface& part) { return part.state().focused; });
}
