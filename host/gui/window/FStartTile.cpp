#include "host/gui/window/FStartTile.h"

#include "host/gui/base/FStateColor.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int drawingSize = 32;
constexpr qreal borderStrength = 0.35;  // readable on light and dark

}  // namespace

FStartTile::FStartTile(const QIcon& icon, const QString& title, const QString& description, QWidget* parent)
    : QAbstractButton(parent), mDescription(description) {
    setIcon(icon);
    setText(title);
    setAccessibleName(title);
    setAccessibleDescription(description);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void FStartTile::setMenu(QMenu* menu) {
    connect(this, &QAbstractButton::clicked, this, [this, menu] { menu->popup(mapToGlobal(rect().bottomLeft())); });
}

QFont FStartTile::titleFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

QSize FStartTile::sizeHint() const {
    constexpr int narrowest = 8;  // times the height of a line
    const int em = fontMetrics().height();
    const int title = QFontMetrics(titleFont()).horizontalAdvance(text());
    const int width = qMax(narrowest * em, title) + 2 * em;
    return {width, heightForWidth(width)};
}

int FStartTile::heightForWidth(int width) const {
    const int em = fontMetrics().height();
    return drawingSize + 5 * em +
           fontMetrics().boundingRect(0, 0, width - 2 * em, 0, Qt::TextWordWrap, mDescription).height();
}

void FStartTile::paintEvent(QPaintEvent* event) {
    Q_UNUSED(event)
    QPainter painter(this);
    const bool isHot = isEnabled() && (underMouse() || hasFocus());
    QColor border = palette().color(isHot ? QPalette::Highlight : QPalette::WindowText);
    if (!isHot) {
        border.setAlphaF(borderStrength);
    }
    painter.setPen(border);
    painter.setBrush(isDown() ? palette().midlight() : isHot ? palette().base() : QBrush(Qt::NoBrush));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int em = fontMetrics().height();
    const QRect place((width() - drawingSize) / 2, em, drawingSize, drawingSize);
    icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    QRect line(0, place.bottom() + em / 2, width(), em + em / 2);
    painter.setFont(titleFont());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(line, Qt::AlignCenter, text());
    painter.setFont(font());
    painter.setPen(isEnabled() ? FStateColor::of(FStateColor::State::Secondary) : painter.pen().color());
    painter.drawText(QRect(em, line.bottom(), width() - 2 * em, height() - line.bottom() - em / 2),
                     Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextWordWrap, mDescription);
}

void FStartTile::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}
