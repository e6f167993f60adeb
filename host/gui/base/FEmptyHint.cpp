#include "host/gui/base/FEmptyHint.h"

#include "host/gui/base/FStateColor.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>

FEmptyHint::FEmptyHint(QAbstractItemView* view, const QString& text) : QObject(view), mpView(view), mText(text) {
    view->viewport()->installEventFilter(this);
}

bool FEmptyHint::eventFilter(QObject* watched, QEvent* event) {
    // Other events also come while the view is being destroyed.
    if (event->type() != QEvent::Paint) {
        return QObject::eventFilter(watched, event);
    }
    const QAbstractItemModel* model = mpView->model();
    const bool isEmpty = !model || model->rowCount(mpView->rootIndex()) == 0;
    // A screen reader can't see what is painted.
    const QString description = isEmpty ? mText : QString();
    if (mpView->accessibleDescription() != description) {
        mpView->setAccessibleDescription(description);
    }
    if (!isEmpty) {
        return QObject::eventFilter(watched, event);
    }
    QPainter painter(mpView->viewport());
    painter.setPen(FStateColor::of(FStateColor::State::Secondary));
    const int margin = mpView->fontMetrics().height() / 3;
    painter.drawText(mpView->viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, mText);
    return true;
}
