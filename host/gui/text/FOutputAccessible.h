#pragma once

#include <QAccessibleWidget>

class FOutputViewer;

/** What a screen reader reads of a viewer of output: the file and line, and the text in view. */
class FOutputAccessible : public QAccessibleWidget {
 public:
    explicit FOutputAccessible(FOutputViewer* viewer);

    QString text(QAccessible::Text kind) const override;

    /** Makes the class known to Qt; further calls do nothing. */
    static void install();

 private:
    const FOutputViewer& viewer() const;
};
