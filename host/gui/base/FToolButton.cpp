#include "host/gui/base/FToolButton.h"

#include "host/gui/base/FIcons.h"

FToolButton::FToolButton(const QString& id, const QString& icon, const QString& text, QWidget* parent)
    : QToolButton(parent) {
    setObjectName(id);
    setIcon(FIcons::get(icon));
    setText(text);
    setToolTip(text);
    setAccessibleName(text);
    setAutoRaise(true);
}
