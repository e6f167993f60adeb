#pragma once

#include <QTabBar>

/** The tab bar of a connector: a double click leads to the overview. */
class FSoftConTabBar : public QTabBar {
    Q_OBJECT

 public:
    using QTabBar::QTabBar;

 signals:
    /** At each press of a mouse button. */
    void clicked();

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};
