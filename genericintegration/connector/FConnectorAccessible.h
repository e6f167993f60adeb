#pragma once

#include <QAccessibleWidget>

class FSoftConScene;
class FSoftConView;

/** What a screen reader finds in the view of a connector: the buttons of its areas, and its items. */
class FConnectorAccessible : public QAccessibleWidget {
 public:
    explicit FConnectorAccessible(FSoftConView* view);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    /** Makes the classes known to Qt; further calls do nothing. */
    static void install();

 private:
    QList<QObject*> parts() const;
};
