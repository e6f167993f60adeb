#include "genericintegration/connector/dialogs/FSoftConResultFilesDialog.h"

#include <QEvent>
#include <QLineEdit>
#include <QPushButton>

void FSoftConResultFilesDialog::lineEditChanged(const QString& text) {
    const QString add = QStringLiteral("Add");
    const QString addNew = QStringLiteral("Add New");
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [&](const QPushButton* button) {
        const QString label = QString(button->text()).remove(QLatin1Char('&'));
        return label == add || label == addNew;
    });
    if (found != buttons.end()) {
        (*found)->setText(isAnySelectedThere() ? add : addNew);
        (*found)->setEnabled(!text.isEmpty());
        (*found)->installEventFilter(this);
    }
}

// The base decides again whenever it has looked at the folder.
bool FSoftConResultFilesDialog::eventFilter(QObject* watched, QEvent* event) {
    auto* button = qobject_cast<QPushButton*>(watched);
    if (button && event->type() == QEvent::EnabledChange) {
        button->setEnabled(!lineEdit()->text().isEmpty());
    }
    return FSoftConDialog::eventFilter(watched, event);
}
