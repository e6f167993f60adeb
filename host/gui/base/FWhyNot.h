#pragma once

#include <QString>
#include <QVariant>

/** Controls that say why they can't be used. */
namespace FWhyNot {

/**
 * Enables an action or widget if there is no reason against it, and adds the reason to its tool tip otherwise. The tool
 * tip that it has at the first call is its own.
 */
template <class Control>
void apply(Control& control, const QString& reason) {
    constexpr const char* name = "ownToolTip";
    if (!control.property(name).isValid()) {
        control.setProperty(name, control.toolTip());
    }
    const QString own = control.property(name).toString();
    control.setEnabled(reason.isEmpty());
    control.setToolTip(reason.isEmpty() ? own : own + QLatin1Char('\n') + reason);
}

}  // namespace FWhyNot
