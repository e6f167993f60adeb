#pragma once

#include <QStringList>

class QWidget;

/**
 * Looks for what a user can't see, read or reach in a window as it is shown now: widgets that are too small or cut off,
 * controls without an accessible name, pale texts, controls that Tab doesn't reach once and in reading order.
 */
class FVisualCheck {
 public:
    explicit FVisualCheck(QWidget& window) : mWindow(window) {}

    /** A line for each fault. */
    QStringList faults();

 private:
    QList<QWidget*> shown() const;
    void checkSize(const QWidget& widget);
    void checkName(QWidget& widget);
    void checkContrast(const QWidget& widget);
    /** That the outline of a check box or radio button can be seen in a dark window. */
    void checkOutline(QWidget& widget);
    void checkTabs();
    void report(const QWidget& widget, const QString& fault);

    QWidget& mWindow;
    QStringList mFaults;
};
