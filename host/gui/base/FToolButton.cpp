#include "host/gui/base/FToolButton.h"

#include "host/gui/base/FIcons.h"

#include <QLayout>

FToolButton::FToolButton(const QString& id, const QString& icon, const QString& text, QWidget* parent)
    : QToolButton(parent) {
    setObjectName(id);
    setIcon(FIcons::get(icon));
    setText(text);
    setToolTip(text);
    setAccessibleName(text);
    setAutoRaise(true);
}

FToolButton* FToolButton::addTo(QLayout& row, const QString& id, const QString& icon, const QString& text) {
    auto* button = new FToolButton(id, icon, text);
    row.addWidget(button);
    return button;
}
