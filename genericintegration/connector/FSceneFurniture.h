#pragma once

#include "genericintegration/connector/layout/FSceneGeometry.h"

#include <QObject>

#include <array>

class QGraphicsProxyWidget;
class QGraphicsScene;
class QToolButton;

/** What a connector's scene shows besides its items: panels, title bars with labels and buttons, and the line between.
 */
class FSceneFurniture : public QObject {
    Q_OBJECT

 public:
    /** The texts of the labels, by area. */
    static const std::array<QString, filledAreas>& labels();

    /** Puts the widgets into the scene, which also owns this object. */
    explicit FSceneFurniture(QGraphicsScene& scene);

    FSceneSizes sizes(double computationWidth) const;
    double titleBarHeight() const;
    void place(const FSceneGeometry& geometry);
    /** After a change of the palette. */
    void updateColors();
    QToolButton* scanButton() const;
    /** The proxies of the buttons in reading order. */
    QList<QObject*> buttons() const;

 signals:
    void addRequested(SoftConArea area);
    void docuRequested(QString area);
    void scanToggled(bool isOn);
    void connectRequested();

 private:
    QGraphicsProxyWidget* addFrame(const QString& name, double depth, bool isShaded);
    QGraphicsProxyWidget* addTitleBar();
    QGraphicsProxyWidget* addButton(const QString& name, const QIcon& icon, const QString& what);
    QGraphicsProxyWidget* addAddButton(SoftConArea area);
    QGraphicsProxyWidget* addDocuButton(SoftConArea area);
    QGraphicsProxyWidget* addLabel(SoftConArea area);
    void makeLinkButtons();
    /** Shows the label of an area in a width; where that is too little, smaller, or cut. */
    void fitLabel(SoftConArea area, double room);
    /** Where the geometry has it, as far as it fits between two edges. */
    void placeLabel(SoftConArea area, const FSceneGeometry& geometry, double left, double right);

    QGraphicsScene& mScene;
    QGraphicsProxyWidget* mSplitLine;
    QGraphicsProxyWidget* mInputArea;
    QGraphicsProxyWidget* mResultArea;
    QGraphicsProxyWidget* mTitleBarTop;
    QGraphicsProxyWidget* mTitleBarLeft;
    QGraphicsProxyWidget* mTitleBarRight;
    QGraphicsProxyWidget* mScanButton;
    QGraphicsProxyWidget* mConnectButton;
    // By area.
    std::array<QGraphicsProxyWidget*, filledAreas> mAddButtons{};
    std::array<QGraphicsProxyWidget*, filledAreas> mDocuButtons{};
    std::array<QGraphicsProxyWidget*, filledAreas> mLabels{};
};
