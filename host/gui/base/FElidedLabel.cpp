#include "host/gui/base/FElidedLabel.h"

#include <QEvent>
#include <QVariant>

FElidedLabel::FElidedLabel(FStateColor::State state, QWidget* parent) : FStateLabel(state, parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setProperty("elides", true);
}

void FElidedLabel::show(const QString& text) {
    mText = text;
    setAccessibleDescription(text);
    elide();
}

void FElidedLabel::elide() {
    const QString shown = fontMetrics().elidedText(mText, Qt::ElideRight, contentsRect().width());
    // Also without a text, there is room for a line.
    setText(shown.isEmpty() ? QStringLiteral(" ") : shown);
    setToolTip(shown == mText ? QString() : mText);
}

void FElidedLabel::resizeEvent(QResizeEvent* event) {
    FStateLabel::resizeEvent(event);
    elide();
}

void FElidedLabel::changeEvent(QEvent* event) {
    FStateLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        elide();
    }
}
