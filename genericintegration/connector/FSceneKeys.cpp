#include "genericintegration/connector/FSceneKeys.h"

#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/FSoftConScene.h"

#include <QAbstractButton>
#include <QGraphicsProxyWidget>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QGraphicsItem* graphicsItemOf(QObject* part) {
    auto* proxy = qobject_cast<QGraphicsProxyWidget*>(part);
    return proxy ? static_cast<QGraphicsItem*>(proxy) : dynamic_cast<FSoftConObjectItem*>(part);
}

QRectF placeOf(QObject* part) {
    return graphicsItemOf(part)->sceneBoundingRect();
}

QPointF directionOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {};
    }
}

/** The gap between two intervals; 0 if they overlap. */
double gap(double begin, double end, double otherBegin, double otherEnd) {
    return std::max({0.0, otherBegin - end, begin - otherEnd});
}

/** How far it is from one place to another one in that direction; endless if it isn't there. */
double distance(const QRectF& from, const QRectF& to, const QPointF& direction) {
    constexpr double ofDetour = 3;    // what is beside counts as farther away
    constexpr double ofOffset = 0.1;  // of two that are in line, the one that is better in line
    const QPointF way = to.center() - from.center();
    const double along = QPointF::dotProduct(way, direction);
    const bool isHorizontal = direction.y() == 0;
    const double aside = isHorizontal ? gap(from.top(), from.bottom(), to.top(), to.bottom())
                                      : gap(from.left(), from.right(), to.left(), to.right());
    const double offset = std::abs(isHorizontal ? way.y() : way.x());
    return along > 1 ? along + ofDetour * aside + ofOffset * offset : std::numeric_limits<double>::infinity();
}

/** The part for which that is the smallest; null if it is endless for each. */
template <class Distance>
QObject* nearest(const QList<QObject*>& parts, const Distance& distanceTo) {
    QObject* found = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (QObject* part : parts) {
        const double length = graphicsItemOf(part)->isEnabled() ? distanceTo(part) : least;
        if (length < least) {
            least = length;
            found = part;
        }
    }
    return found;
}

void focus(QObject* part) {
    if (part) {
        graphicsItemOf(part)->setFocus(Qt::TabFocusReason);
    }
}

QObject* upperLeft(const QList<QObject*>& parts) {
    return nearest(parts, [](QObject* part) {
        constexpr double ofRow = 1000;
        const QPointF place = placeOf(part).topLeft();
        return 1e9 + ofRow * place.y() + place.x();
    });
}

}  // namespace

FSceneKeys::FSceneKeys(FSoftConScene& scene) : mScene(scene) {}

bool FSceneKeys::isAtButton() const {
    return mpLastButton && graphicsItemOf(mpLastButton)->hasFocus();
}

// A click can give the focus to a panel, which is neither.
bool FSceneKeys::isAtItem() const {
    return dynamic_cast<FSoftConObjectItem*>(mScene.focusItem());
}

void FSceneKeys::remember(QObject* part) {
    if (mScene.buttonParts().contains(part)) {
        mpLastButton = part;
    } else if (dynamic_cast<FSoftConObjectItem*>(part)) {
        mpLastItem = part;
    }
}

bool FSceneKeys::press(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Delete && event.modifiers() == Qt::ControlModifier) {
        return remove();
    }
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return open();
        case Qt::Key_Space:
            return select();
        case Qt::Key_Delete:
            return remove();
        default:
            return move(event.key());
    }
}

bool FSceneKeys::goOn(bool isForward) {
    if (!isAtItem() && !isAtButton()) {
        enter(isForward);
        return true;
    }
    if (isAtButton() == isForward) {
        return false;
    }
    enter(isAtButton());
    return true;
}

void FSceneKeys::enter(bool isForward) {
    if (isForward) {
        focusItems();
    } else {
        focusButtons();
    }
}

void FSceneKeys::focusItems() {
    const QList<QObject*> items = mScene.itemParts();
    focus(items.contains(mpLastItem) ? mpLastItem.data() : upperLeft(items));
}

void FSceneKeys::focusButtons() {
    focus(mpLastButton ? mpLastButton.data() : upperLeft(mScene.buttonParts()));
}

bool FSceneKeys::move(int key) {
    const QPointF direction = directionOf(key);
    if (direction.isNull()) {
        return false;
    }
    if (!isAtItem() && !isAtButton()) {
        focusItems();
        return true;
    }
    const QRectF from = mScene.focusItem()->sceneBoundingRect();
    focus(nearest(isAtButton() ? mScene.buttonParts() : mScene.itemParts(),
                  [&](QObject* part) { return distance(from, placeOf(part), direction); }));
    return true;
}

bool FSceneKeys::open() {
    if (isAtButton()) {
        const auto* proxy = qobject_cast<QGraphicsProxyWidget*>(mpLastButton);
        qobject_cast<QAbstractButton*>(proxy->widget())->click();
        return true;
    }
    auto* item = dynamic_cast<FSoftConObjectItem*>(mScene.focusItem());
    if (item && !item->open()) {
        mScene.callEditor(item);
    }
    return item;
}

bool FSceneKeys::select() {
    const auto* item = dynamic_cast<FSoftConObjectItem*>(mScene.focusItem());
    if (item) {
        mScene.callEditor(item);
    }
    return item;
}

bool FSceneKeys::isAtRemovable() const {
    const auto* item = dynamic_cast<const FSoftConObjectItem*>(mScene.focusItem());
    return item && item->deleteProxy();
}

bool FSceneKeys::remove() {
    return remove(dynamic_cast<FSoftConObjectItem*>(mScene.focusItem()));
}

bool FSceneKeys::removeLast() {
    const bool isThere = mScene.itemParts().contains(mpLastItem);
    return remove(isThere ? dynamic_cast<FSoftConObjectItem*>(mpLastItem.data()) : nullptr);
}

bool FSceneKeys::remove(FSoftConObjectItem* item) {
    if (!item || !item->deleteProxy()) {
        return false;
    }
    const QPointF place = item->sceneBoundingRect().center();
    mScene.deleteItem(item);
    focus(nearest(mScene.itemParts(), [&place](QObject* part) {
        const QPointF way = placeOf(part).center() - place;
        return std::hypot(way.x(), way.y());
    }));
    return true;
}
