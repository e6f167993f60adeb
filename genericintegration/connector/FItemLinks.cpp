#include "genericintegration/connector/FItemLinks.h"

#include "genericintegration/connector/FSoftConObjectItem.h"

#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QStringList>
#include <QStyleOptionGraphicsItem>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

constexpr double depth = -0.5;  // above panels and title bars
constexpr double lineWidth = 1;
constexpr double emphasizedWidth = 3;
constexpr double headLength = 7;
constexpr double headWidth = 4;  // to either side
// Lines to different templates run beside each other.
constexpr int lanes = 4;
constexpr double firstLane = 9;
constexpr double nextLane = 4;

using Corners = QVector<QPointF>;

Corners rounded(Corners corners) {
    for (QPointF& corner : corners) {
        corner = corner.toPoint();
    }
    return corners;
}

/** Along a row of pages, below it, or to another row between the two. */
Corners between(const QRectF& from, const QRectF& to, double lane) {
    const bool isHigher = to.bottom() <= from.top();
    const bool isLower = to.top() >= from.bottom();
    const double start = isHigher ? from.top() : from.bottom();
    const double end = isLower ? to.top() : to.bottom();
    const double way = (isHigher ? to.bottom() : from.bottom()) + lane;
    return rounded(
        {{from.center().x(), start}, {from.center().x(), way}, {to.center().x(), way}, {to.center().x(), end}});
}

/** From the side of a row of a list to the side of another one. */
Corners besides(const QRectF& from, const QRectF& to, double lane) {
    const bool isFromRight = from.left() > to.right();
    const double gap = isFromRight ? from.left() - to.right() : to.left() - from.right();
    const double reach = gap > 0 ? std::min(lane, gap / 2) : lane;
    const double start = from.right() < to.left() ? from.right() : from.left();
    const double end = isFromRight ? to.right() : to.left();
    const double way = isFromRight ? end + reach : end - reach;
    return rounded(
        {{start, from.center().y()}, {way, from.center().y()}, {way, to.center().y()}, {end, to.center().y()}});
}

bool isRow(const QRectF& rect) {
    return rect.width() > 2 * rect.height();
}

/** The place of a line that is horizontal or vertical. */
QRectF stroke(const QLineF& line, double width) {
    const double aside = (width - 1) / 2;
    return QRectF(line.p1(), line.p2()).normalized().adjusted(-aside, -aside, aside + 1, aside + 1);
}

void paintHead(QPainter& painter, const QLineF& end) {
    const QPointF along = (end.p2() - end.p1()) / std::max(1.0, end.length());
    const QPointF across(along.y() * headWidth, along.x() * headWidth);
    const QPointF back = end.p2() - along * headLength;
    painter.drawPolygon(QPolygonF({end.p2(), back + across, back - across}));
}

/** Lines that touch become one. They are all horizontal, or all vertical. */
void join(std::vector<QLineF> lines, bool areVertical, std::vector<QLineF>& joined) {
    const auto place = [areVertical](const QLineF& line) { return areVertical ? line.x1() : line.y1(); };
    const auto begin = [areVertical](const QLineF& line) {
        return areVertical ? std::min(line.y1(), line.y2()) : std::min(line.x1(), line.x2());
    };
    const auto end = [areVertical](const QLineF& line) {
        return areVertical ? std::max(line.y1(), line.y2()) : std::max(line.x1(), line.x2());
    };
    std::sort(lines.begin(), lines.end(), [&](const QLineF& line, const QLineF& other) {
        return std::make_pair(place(line), begin(line)) < std::make_pair(place(other), begin(other));
    });
    std::size_t done = joined.size();
    for (const QLineF& line : lines) {
        const bool touches =
            joined.size() > done && place(joined.back()) == place(line) && begin(line) <= end(joined.back());
        const double to = touches ? std::max(end(joined.back()), end(line)) : end(line);
        const double from = touches ? begin(joined.back()) : begin(line);
        if (touches) {
            joined.pop_back();
        }
        joined.push_back(areVertical ? QLineF(place(line), from, place(line), to)
                                     : QLineF(from, place(line), to, place(line)));
    }
}

QColor usualColor(const QPalette& palette) {
    constexpr double share = 0.45;
    const QColor ink = palette.color(QPalette::WindowText);
    const QColor ground = palette.color(QPalette::AlternateBase);
    const auto mixed = [](double of, double other) { return of * share + other * (1 - share); };
    return QColor::fromRgbF(mixed(ink.redF(), ground.redF()), mixed(ink.greenF(), ground.greenF()),
                            mixed(ink.blueF(), ground.blueF()));
}

}  // namespace

FItemLinks::FItemLinks() {
    setZValue(depth);
    setFlag(ItemUsesExtendedStyleOption);
    setAcceptedMouseButtons(Qt::NoButton);
}

void FItemLinks::setLinks(const std::vector<Link>& links) {
    const auto isSame = [](const Line& line, const Link& link) {
        return line.link.from == link.from && line.link.to == link.to;
    };
    if (std::equal(mLines.begin(), mLines.end(), links.begin(), links.end(), isSame)) {
        return;
    }
    mLines.clear();
    for (const Link& link : links) {
        mLines.push_back({link});
    }
    place();
}

QString FItemLinks::describe(const FSoftConObjectItem& item) const {
    QStringList fed;
    QStringList feeding;
    for (const Line& line : mLines) {
        if (line.link.from == &item) {
            fed.append(line.link.to->getLabelItem()->text());
        } else if (line.link.to == &item) {
            feeding.append(line.link.from->getLabelItem()->text());
        }
    }
    const QString separator = QStringLiteral(", ");
    return !fed.isEmpty()       ? QStringLiteral("used in %1").arg(fed.join(separator))
           : !feeding.isEmpty() ? QStringLiteral("uses %1").arg(feeding.join(separator))
                                : QString();
}

void FItemLinks::forget(const FSoftConObjectItem& item) {
    const auto isOfItem = [&item](const Line& line) { return line.link.from == &item || line.link.to == &item; };
    const auto end = std::remove_if(mLines.begin(), mLines.end(), isOfItem);
    if (end != mLines.end()) {
        mLines.erase(end, mLines.end());
        place();
    }
}

void FItemLinks::place() {
    prepareGeometryChange();
    mBounding = QRectF();
    QHash<const FSoftConObjectItem*, int> targets;
    for (Line& line : mLines) {
        const QRectF from = line.link.from->sceneBoundingRect();
        const QRectF to = line.link.to->sceneBoundingRect();
        const int target = targets.value(line.link.to, targets.size());
        targets.insert(line.link.to, target);
        const double lane = firstLane + nextLane * (target % lanes);
        line.corners = isRow(from) ? besides(from, to, lane) : between(from, to, lane);
        line.bounding = QPolygonF(line.corners).boundingRect().adjusted(-headWidth, -headWidth, headWidth, headWidth);
        mBounding |= line.bounding;
    }
    joinLines();
    update();
}

void FItemLinks::joinLines() {
    mJoined.clear();
    mEnds.clear();
    std::vector<QLineF> horizontal;
    std::vector<QLineF> vertical;
    for (const Line& line : mLines) {
        for (int corner = 1; corner < line.corners.size(); ++corner) {
            const QLineF part(line.corners[corner - 1], line.corners[corner]);
            (part.dx() == 0 ? vertical : horizontal).push_back(part);
        }
        mEnds.emplace_back(line.corners[line.corners.size() - 2], line.corners.last());
    }
    join(std::move(horizontal), false, mJoined);
    join(std::move(vertical), true, mJoined);
    const auto order = [](const QLineF& end) { return std::make_tuple(end.x2(), end.y2(), end.x1(), end.y1()); };
    std::sort(mEnds.begin(), mEnds.end(),
              [&order](const QLineF& end, const QLineF& other) { return order(end) < order(other); });
    mEnds.erase(std::unique(mEnds.begin(), mEnds.end()), mEnds.end());
}

void FItemLinks::updateLinksOf(const FSoftConObjectItem& item) {
    for (const Line& line : mLines) {
        if (line.link.from == &item || line.link.to == &item) {
            update(line.bounding);
        }
    }
}

void FItemLinks::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    Q_UNUSED(widget)
    const QPalette palette = QGuiApplication::palette();
    const QRectF& exposed = option->exposedRect;
    painter->setPen(Qt::NoPen);
    painter->setBrush(usualColor(palette));
    for (const QLineF& line : mJoined) {
        painter->fillRect(stroke(line, lineWidth) & exposed, painter->brush());
    }
    for (const QLineF& end : mEnds) {
        paintHead(*painter, end);
    }
    painter->setBrush(palette.highlight());
    for (const Line& line : mLines) {
        if (line.bounding.intersects(exposed) && (line.link.from->isEmphasized() || line.link.to->isEmphasized())) {
            paintLine(*painter, line, exposed);
        }
    }
}

void FItemLinks::paintLine(QPainter& painter, const Line& line, const QRectF& exposed) {
    for (int corner = 1; corner < line.corners.size(); ++corner) {
        const QLineF part(line.corners[corner - 1], line.corners[corner]);
        painter.fillRect(stroke(part, emphasizedWidth) & exposed, painter.brush());
    }
    paintHead(painter, {line.corners[line.corners.size() - 2], line.corners.last()});
}
