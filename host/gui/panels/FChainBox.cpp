#include "host/gui/panels/FChainBox.h"

#include "host/design/FConnectorInterface.h"
#include "host/gui/base/FRunLook.h"
#include "host/gui/panels/FChainScene.h"
#include "host/gui/panels/FRunSign.h"
#include "host/run/FExternComputation.h"

#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int widthInCharacters = 26;
constexpr int linesOfText = 3;

QString connectorOf(const FExternComputation& computation) {
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        if (connector->getComputation().ptr() == &computation) {
            return connector->asManaged()->getName();
        }
    }
    return {};
}

double marginIn(const QFontMetricsF& metrics) {
    return metrics.height() / 3;
}

}  // namespace

FChainBox::FChainBox(const FExpr<FExternComputation>& computation) : mComputation(computation) {
    setFlag(ItemIsSelectable);
    follow();
}

void FChainBox::follow() {
    const FExternComputation* shown = mComputation.ptr();
    if (!shown) {
        return;
    }
    const FProgramSettings& program = shown->getProgram();
    const std::shared_ptr<const FRunRecord> run = FRunLook::runOf(*shown);
    mName = shown->getName();
    mProgram = program.executable.isEmpty() ? QStringLiteral("no program")
                                            : QFileInfo(program.executable).fileName() + QLatin1Char(' ') +
                                                  program.arguments.join(QLatin1Char(' '));
    mState = run ? run->state : FRunRecord::State::Ready;
    mStateText = FRunLook::textOf(*shown);
    setToolTip(toolTipText(*shown));
    update();
}

QString FChainBox::toolTipText(const FExternComputation& computation) const {
    const std::shared_ptr<const FRunRecord> run = FRunLook::runOf(computation);
    const QString connector = connectorOf(computation);
    QStringList lines{connector.isEmpty() ? mName : QStringLiteral("%1 (%2)").arg(mName, connector), mProgram,
                      mStateText};
    if (run && !run->message.isEmpty()) {
        lines.append(run->message.section(QLatin1Char('\n'), 0, 0));
    }
    return lines.join(QLatin1Char('\n'));
}

QString FChainBox::text() const {
    return QStringLiteral("%1, %2, %3").arg(mName, mProgram, mStateText);
}

QSizeF FChainBox::sizeIn(const QFont& font) {
    const QFontMetricsF metrics(font);
    return {widthInCharacters * metrics.averageCharWidth(), linesOfText * metrics.height() + 3 * marginIn(metrics)};
}

QRectF FChainBox::boundingRect() const {
    const QFont font = scene() ? scene()->font() : QFont();
    const double pen = QFontMetricsF(font).height() / 4;
    return QRectF(QPointF(), sizeIn(font)).adjusted(-pen, -pen, pen, pen);
}

void FChainBox::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    Q_UNUSED(option)
    Q_UNUSED(widget)
    const auto& scene = static_cast<const FChainScene&>(*this->scene());
    const QPalette& palette = scene.colors();
    const QFontMetricsF metrics(scene.font());
    const double line = metrics.height();
    const double margin = marginIn(metrics);
    const QColor color = FStateColor::of(FRunLook::of(mState).color, palette);
    const QRectF box(QPointF(), sizeIn(scene.font()));
    const bool isMarked = isSelected() && scene.showsSelection();

    painter->setPen(QPen(isMarked ? palette.color(QPalette::Highlight) : color, isMarked ? line / 6 : line / 16));
    painter->setBrush(palette.color(QPalette::Base));
    painter->drawRoundedRect(box, margin, margin);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRect(QRectF(box.left(), box.top() + margin, margin / 2, box.height() - 2 * margin));

    const QRectF room = box.adjusted(2 * margin, margin, -margin, -margin);
    const auto draw = [&](const QString& text, const QFont& font, double top, double left) {
        const QFontMetricsF own(font);
        painter->setFont(font);
        painter->drawText(QPointF(room.left() + left, room.top() + top + own.ascent()),
                          own.elidedText(text, Qt::ElideRight, room.width() - left));
    };
    QFont bold = scene.font();
    bold.setBold(true);
    painter->setPen(palette.color(QPalette::Text));
    draw(mName, bold, 0, 0);
    painter->setPen(FStateColor::of(FStateColor::State::Secondary, palette));
    draw(mProgram, scene.font(), line, 0);
    const double stateTop = room.height() - line;
    painter->setPen(color);
    draw(mStateText, scene.font(), stateTop, line);
    const double side = 0.7 * line;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, line / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(
        QTransform(side, 0, 0, side, room.left(), room.top() + stateTop + (line - side) / 2).map(FRunSign::of(mState)));
}
