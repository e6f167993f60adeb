#include "genericintegration/connector/FSceneFurniture.h"

#include "genericintegration/connector/FSceneColors.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "host/gui/base/FIcons.h"

#include <QFontInfo>
#include <QFrame>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <cmath>

namespace {

// Behind all items, from the back to the front.
constexpr double panelDepth = -4;
constexpr double lineDepth = -3;
constexpr double barDepth = -2;
constexpr double controlDepth = -1;

}  // namespace

const std::array<QString, filledAreas>& FSceneFurniture::labels() {
    using F = FSoftwareConnector;
    static const std::array<QString, filledAreas> texts{F::smInputAreaLabel, F::smExportAreaLabel, F::smOutputAreaLabel,
                                                        F::smImportAreaLabel};
    return texts;
}

FSceneFurniture::FSceneFurniture(QGraphicsScene& scene)
    : QObject(&scene),
      mScene(scene),
      mSplitLine(addFrame(QStringLiteral("verticalSplitLine"), lineDepth, true)),
      mInputArea(addFrame(QStringLiteral("inputArea"), panelDepth, false)),
      mResultArea(addFrame(QStringLiteral("resultArea"), panelDepth, false)),
      mTitleBarTop(addTitleBar()),
      mTitleBarLeft(addTitleBar()),
      mTitleBarRight(addTitleBar()),
      mScanButton(addButton(QStringLiteral("softConButton"), FIcons::get(QStringLiteral(":/scanForResults")),
                            QStringLiteral("Automatic scan for results"))),
      mConnectButton(addButton(QStringLiteral("softConButton"), FIcons::get(QStringLiteral(":/softConIcon")),
                               QStringLiteral("Connect to another connector"))) {
    for (std::size_t index = 0; index < filledAreas; ++index) {
        const auto area = static_cast<SoftConArea>(index);
        mAddButtons[index] = addAddButton(area);
        mDocuButtons[index] = addDocuButton(area);
        mLabels[index] = addLabel(area);
    }
    makeLinkButtons();
    updateColors();
}

void FSceneFurniture::updateColors() {
    QPalette palette;
    palette.setColor(QPalette::Window, FSceneColors::titleBar());
    for (const QGraphicsProxyWidget* proxy : {mTitleBarTop, mTitleBarLeft, mTitleBarRight}) {
        proxy->widget()->setPalette(palette);
    }
}

QGraphicsProxyWidget* FSceneFurniture::addFrame(const QString& name, double depth, bool isShaded) {
    auto* frame = new QFrame;
    frame->setObjectName(name);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(isShaded ? QPalette::Mid : QPalette::AlternateBase);
    QGraphicsProxyWidget* proxy = mScene.addWidget(frame);
    proxy->setZValue(depth);
    return proxy;
}

QGraphicsProxyWidget* FSceneFurniture::addTitleBar() {
    auto* widget = new QWidget;
    widget->setObjectName(QStringLiteral("titleBar_wgt"));
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QFrame;
    bar->setObjectName(QStringLiteral("titleBar"));
    bar->setAutoFillBackground(true);
    row->addWidget(bar);
    const QToolButton button;
    const int margin = widget->fontMetrics().height() / 4;
    widget->setFixedHeight(std::max(widget->fontMetrics().height(), button.sizeHint().height()) + margin);
    QGraphicsProxyWidget* proxy = mScene.addWidget(widget);
    proxy->setZValue(barDepth);
    return proxy;
}

QGraphicsProxyWidget* FSceneFurniture::addButton(const QString& name, const QIcon& icon, const QString& what) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setIcon(icon);
    button->setAccessibleName(what);
    button->resize(button->sizeHint());
    // The bar behind shows through.
    button->setAttribute(Qt::WA_NoSystemBackground);
    QGraphicsProxyWidget* proxy = mScene.addWidget(button);
    proxy->setZValue(controlDepth);
    return proxy;
}

QGraphicsProxyWidget* FSceneFurniture::addAddButton(SoftConArea area) {
    const QString name = isLeftArea(area) ? QStringLiteral("addButtonLeft") : QStringLiteral("addButtonRight");
    QGraphicsProxyWidget* proxy = addButton(name, FIcons::get(QStringLiteral("list-add")),
                                            QStringLiteral("Add %1").arg(labels()[static_cast<std::size_t>(area)]));
    connect(qobject_cast<QToolButton*>(proxy->widget()), &QToolButton::clicked, this,
            [this, area] { emit addRequested(area); });
    return proxy;
}

QGraphicsProxyWidget* FSceneFurniture::addDocuButton(SoftConArea area) {
    const QString label = labels()[static_cast<std::size_t>(area)];
    QGraphicsProxyWidget* proxy =
        addButton(QStringLiteral("softConButton"), FIcons::get(QStringLiteral("documentinfo")),
                  QStringLiteral("About %1").arg(label));
    connect(qobject_cast<QToolButton*>(proxy->widget()), &QToolButton::clicked, this,
            [this, label] { emit docuRequested(label); });
    return proxy;
}

QGraphicsProxyWidget* FSceneFurniture::addLabel(SoftConArea area) {
    auto* label = new QLabel(labels()[static_cast<std::size_t>(area)]);
    label->setObjectName(QStringLiteral("headerLabel"));
    label->setAttribute(Qt::WA_NoSystemBackground);
    label->resize(label->sizeHint());
    QGraphicsProxyWidget* proxy = mScene.addWidget(label);
    proxy->setZValue(controlDepth);
    return proxy;
}

void FSceneFurniture::makeLinkButtons() {
    QToolButton* scan = scanButton();
    scan->setCheckable(true);
    scan->setToolTip(
        QStringLiteral("Automatic scan for results in computation directory. (If you have set up the computation "
                       "already just let it run. All new result files except pure text files will be added "
                       "automatically.)"));
    connect(scan, &QToolButton::clicked, this, &FSceneFurniture::scanToggled);
    auto* link = qobject_cast<QToolButton*>(mConnectButton->widget());
    link->setToolTip(QStringLiteral("Connects this Software Connector to the result of another Software Connector."));
    connect(link, &QToolButton::clicked, this, &FSceneFurniture::connectRequested);
}

QToolButton* FSceneFurniture::scanButton() const {
    return qobject_cast<QToolButton*>(mScanButton->widget());
}

QList<QObject*> FSceneFurniture::buttons() const {
    return {mAddButtons[SoftConExportArea],
            mDocuButtons[SoftConExportArea],
            mDocuButtons[SoftConInputArea],
            mConnectButton,
            mAddButtons[SoftConInputArea],
            mAddButtons[SoftConImportArea],
            mScanButton,
            mDocuButtons[SoftConImportArea],
            mDocuButtons[SoftConOutputArea],
            mAddButtons[SoftConOutputArea]};
}

double FSceneFurniture::titleBarHeight() const {
    return mTitleBarTop->size().height();
}

FSceneSizes FSceneFurniture::sizes(double computationWidth) const {
    const QFontMetrics metrics(mTitleBarTop->widget()->font());
    FSceneSizes sizes;
    sizes.computationWidth = computationWidth;
    sizes.titleBarTop = mTitleBarTop->size().height();
    sizes.titleBarLeft = mTitleBarLeft->size().height();
    sizes.titleBarRight = mTitleBarRight->size().height();
    sizes.button = mConnectButton->size();
    sizes.fontHeight = metrics.height();
    for (std::size_t area = 0; area < filledAreas; ++area) {
        sizes.labelWidths[area] = metrics.horizontalAdvance(labels()[area]);
    }
    return sizes;
}

void FSceneFurniture::place(const FSceneGeometry& geometry) {
    mSplitLine->setGeometry(geometry.splitLine);
    mInputArea->setGeometry(geometry.inputArea);
    mResultArea->setGeometry(geometry.resultArea);
    mTitleBarTop->setGeometry(geometry.titleBarTop);
    mTitleBarLeft->setGeometry(geometry.titleBarLeft);
    mTitleBarRight->setGeometry(geometry.titleBarRight);
    mConnectButton->setPos(geometry.connectButton);
    mScanButton->setPos(geometry.scanButton);
    for (std::size_t area = 0; area < filledAreas; ++area) {
        mAddButtons[area]->setPos(geometry.addButtons[area]);
        mDocuButtons[area]->setPos(geometry.docuButtons[area]);
    }
    const auto leftEdge = [&](std::size_t area) { return geometry.docuButtons[area].x(); };
    const auto rightEdge = [&](std::size_t area) { return leftEdge(area) + mConnectButton->size().width(); };
    placeLabel(SoftConInputArea, geometry, 0, leftEdge(SoftConInputArea));
    placeLabel(SoftConExportArea, geometry, rightEdge(SoftConExportArea), 0);
    placeLabel(SoftConOutputArea, geometry, geometry.titleBarRight.left(), leftEdge(SoftConOutputArea));
    placeLabel(SoftConImportArea, geometry, rightEdge(SoftConImportArea), geometry.titleBarLeft.right());
}

// In a narrow window there is little room between the computation and the buttons.
void FSceneFurniture::placeLabel(SoftConArea area, const FSceneGeometry& geometry, double left, double right) {
    constexpr double gap = 2;
    fitLabel(area, right - left - 2 * gap);
    QGraphicsProxyWidget& label = *mLabels[static_cast<std::size_t>(area)];
    const QPointF place = geometry.labels[static_cast<std::size_t>(area)];
    const double last = std::max(left + gap, right - gap - label.widget()->width());
    label.setPos(qBound(left + gap, place.x(), last), place.y());
}

void FSceneFurniture::fitLabel(SoftConArea area, double room) {
    constexpr double smallest = 0.7;  // of the usual font
    auto* label = qobject_cast<QLabel*>(mLabels[static_cast<std::size_t>(area)]->widget());
    const QString& text = labels()[static_cast<std::size_t>(area)];
    QFont font = mTitleBarTop->widget()->font();
    const int height = QFontMetrics(font).height();
    const double needed = QFontMetricsF(font).horizontalAdvance(text);
    if (needed > room) {
        font.setPointSizeF(QFontInfo(font).pointSizeF() * std::max(smallest, room / needed));
    }
    label->setFont(font);
    label->setText(label->fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(std::ceil(room))));
    label->resize(label->sizeHint().width(), height);
}
