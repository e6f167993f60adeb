#pragma once

#include <QAccessibleWidget>

class FChainView;

/** What a screen reader finds in the picture of chains: a list of its boxes. */
class FChainAccessible : public QAccessibleWidget {
 public:
    explicit FChainAccessible(FChainView* view);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    /** Makes the classes known to Qt; further calls do nothing. */
    static void install();

 private:
    FChainView& view() const;
};
