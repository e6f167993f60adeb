#include "genericintegration/editors/FGenIntCommandFileLineEdit.h"

#include "genericintegration/editors/FGenIntCommandFileEdit.h"
#include "host/gui/fields/FObjectNameValidator.h"

#include <QKeyEvent>

#include <algorithm>

FGenIntCommandFileLineEdit::FGenIntCommandFileLineEdit(FGenIntCommandFileEdit& edit) : QLineEdit(&edit), mEdit(edit) {
    setObjectName(QStringLiteral("entryName"));
    setAccessibleName(QStringLiteral("Name of the entry"));
    setValidator(new FObjectNameValidator(this));
    connect(this, &QLineEdit::textEdited, this, &FGenIntCommandFileLineEdit::fit);
    hide();
}

void FGenIntCommandFileLineEdit::start(const QString& name, const QPoint& place) {
    setFont(mEdit.font());
    setText(name);
    setGeometry({place, QSize(0, sizeHint().height())});
    fit();
    show();
    raise();
    selectAll();
    setFocus();
}

void FGenIntCommandFileLineEdit::fit() {
    constexpr int padding = 29;
    const int wanted = std::max(fontMetrics().horizontalAdvance(text()) + padding, width());
    resize(std::min(wanted, mEdit.width()), height());
    move(std::clamp(x(), 0, mEdit.width() - width()), std::clamp(y(), 0, std::max(0, mEdit.height() - height())));
}

void FGenIntCommandFileLineEdit::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // A word of the script language is not a name, but can become one.
            if (isVisible() && hasAcceptableInput()) {
                mEdit.entryNameChanged();
                mEdit.setFocus();
            }
            event->accept();
            break;
        case Qt::Key_Escape:
            hide();
            mEdit.setFocus();
            break;
        default:
            QLineEdit::keyPressEvent(event);
    }
}

void FGenIntCommandFileLineEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // The focus comes back with the window, and after a menu.
    const bool isBrief = event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    // The page around it may have been closed.
    const bool isOpen = !isHidden() && window()->isVisible();
    if (isOpen && !isBrief && hasAcceptableInput()) {
        mEdit.entryNameChanged();
    } else if (!isBrief) {
        hide();
    }
}
