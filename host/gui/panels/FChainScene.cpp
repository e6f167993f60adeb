#include "host/gui/panels/FChainScene.h"

#include "host/gui/base/FTheme.h"
#include "host/gui/panels/FChainArrow.h"
#include "host/gui/panels/FChainBox.h"
#include "host/gui/panels/FLayeredLayout.h"
#include "host/run/FExternComputation.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>

#include <cmath>

namespace {

/** Between two columns, for an arrow and its text. */
double gapIn(const QFont& font) {
    constexpr int characters = 24;
    return characters * QFontMetricsF(font).averageCharWidth();
}

QString textOf(const FComputationGraph::Link& link) {
    return (link.files + link.values).join(QStringLiteral(", "));
}

}  // namespace

FChainScene::FChainScene(QObject* parent) : QGraphicsScene(parent), mColors(QGuiApplication::palette()) {
    // Boxes are few, and all of them are built again together.
    setItemIndexMethod(NoIndex);
}

FChainBox* FChainScene::boxOf(const FManaged* computation) const {
    return mBoxOf.value(computation);
}

void FChainScene::follow() {
    const FComputationGraph graph;
    std::vector<int> ids;
    for (const FExternComputation* computation : graph.computations()) {
        ids.push_back(computation->getDbId());
    }
    if (ids != mIds || graph.links() != mLinks) {
        mIds = std::move(ids);
        mLinks = graph.links();
        build(graph);
        return;
    }
    for (FChainBox* box : qAsConst(mBoxes)) {
        box->follow();
    }
}

void FChainScene::followRun(const FManaged* computation) {
    if (FChainBox* box = boxOf(computation)) {
        box->follow();
    }
}

void FChainScene::forget(const FManaged* computation) {
    if (FChainBox* box = mBoxOf.take(computation)) {
        mBoxes.removeOne(box);
        delete box;
        mIds.clear();
    }
}

void FChainScene::updateLook() {
    mColors = QGuiApplication::palette();
    setFont(QGuiApplication::font());
    build(FComputationGraph());
}

QPointF FChainScene::placeOf(int column, double row) const {
    const QSizeF box = FChainBox::sizeIn(font());
    constexpr double pitch = 1.5;
    return {column * (box.width() + gapIn(font())), row * pitch * box.height()};
}

void FChainScene::build(const FComputationGraph& graph) {
    QList<const FManaged*> selected;
    for (const FChainBox* box : qAsConst(mBoxes)) {
        if (box->isSelected()) {
            selected.append(box->computation().ptr());
        }
    }
    const QSignalBlocker blocker(this);
    clear();
    mBoxes.clear();
    mBoxOf.clear();
    std::vector<FLayeredLayout::Link> links;
    for (const FComputationGraph::Link& link : graph.links()) {
        links.push_back({link.supplier, link.client});
    }
    const FLayeredLayout layout(static_cast<int>(graph.computations().size()), std::move(links));
    for (std::size_t i = 0; i < graph.computations().size(); ++i) {
        auto* box = new FChainBox(FExpr<FExternComputation>(graph.computations()[i]));
        const FLayeredLayout::Place& place = layout.places()[i];
        addItem(box);
        box->setPos(placeOf(place.column, place.row));
        box->setSelected(selected.contains(graph.computations()[i]));
        mBoxes.append(box);
        mBoxOf.insert(graph.computations()[i], box);
    }
    for (std::size_t i = 0; i < graph.links().size(); ++i) {
        addArrow(graph.links()[i], layout.links()[i].lane);
    }
    const double margin = QFontMetricsF(font()).height();
    setSceneRect(itemsBoundingRect().adjusted(-margin, -margin, margin, margin));
}

void FChainScene::addArrow(const FComputationGraph::Link& link, double lane) {
    const QSizeF size = FChainBox::sizeIn(font());
    const QPointF start = mBoxes[link.supplier]->pos() + QPointF(size.width(), size.height() / 2);
    const QPointF end = mBoxes[link.client]->pos() + QPointF(0, size.height() / 2);
    const double gap = gapIn(font());
    QPainterPath line(start);
    QPointF middle = (start + end) / 2;
    constexpr double part = 0.6;
    double room = part * gap;
    if (lane < 0) {
        line.cubicTo(start + QPointF(gap / 2, 0), end - QPointF(gap / 2, 0), end);
    } else {
        const double y = placeOf(0, lane).y();
        const QPointF up(start.x() + gap / 2, y);
        const QPointF down(end.x() - gap / 2, y);
        line.cubicTo(start + QPointF(gap / 2, 0), up - QPointF(gap / 4, 0), up);
        line.lineTo(down);
        line.cubicTo(down + QPointF(gap / 4, 0), end - QPointF(gap / 2, 0), end);
        middle = (up + down) / 2;
        room = part * (down.x() - up.x());
    }
    addItem(new FChainArrow(line, textOf(link), !link.files.isEmpty(), middle, room));
}

FChainBox* FChainScene::nextTo(const FChainBox& box, Qt::Key direction) const {
    const bool isSideways = direction == Qt::Key_Left || direction == Qt::Key_Right;
    const double sign = direction == Qt::Key_Right || direction == Qt::Key_Down ? 1 : -1;
    FChainBox* nearest = nullptr;
    double least = 0;
    for (FChainBox* other : mBoxes) {
        const QPointF way = other->pos() - box.pos();
        const double ahead = sign * (isSideways ? way.x() : way.y());
        const double aside = std::abs(isSideways ? way.y() : way.x());
        const double distance = ahead + 2 * aside;
        if (ahead > 0 && (!nearest || distance < least)) {
            nearest = other;
            least = distance;
        }
    }
    return nearest;
}

QByteArray FChainScene::toSvg() {
    QBuffer buffer;
    QSvgGenerator generator;
    const QRectF all = sceneRect();
    generator.setOutputDevice(&buffer);
    generator.setSize(all.size().toSize());
    generator.setViewBox(QRectF(QPointF(), all.size()));
    generator.setTitle(QStringLiteral("Chain of computations"));
    mColors = FTheme::lightPalette();
    mShowsSelection = false;
    QPainter painter(&generator);
    render(&painter, QRectF(QPointF(), all.size()), all);
    painter.end();
    mShowsSelection = true;
    mColors = QGuiApplication::palette();
    return buffer.data();
}
