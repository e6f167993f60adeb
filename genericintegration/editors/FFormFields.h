#pragma once

#include <QSizePolicy>
#include <QString>
#include <QStringList>

class QComboBox;

/** The fields of the form of a result template. */
namespace FFormFields {

/** Gives a field the name by which it is found, and the one that a screen reader says. */
template <class Widget>
Widget* named(Widget* widget, const char* id, const char* name) {
    widget->setObjectName(QString::fromLatin1(id));
    widget->setAccessibleName(QString::fromLatin1(name));
    return widget;
}

/** A button without a text: what can be clicked is no wider than what is seen. */
template <class Button>
Button* mark(const char* id, const char* name) {
    auto* button = named(new Button, id, name);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

/** A list of choices, which may be narrower than they are. */
QComboBox* combo(const char* id, const char* name, const QStringList& items);

/** Selects an item without a signal. */
void select(QComboBox& combo, int index);

}  // namespace FFormFields
