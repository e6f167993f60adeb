#pragma once

#include "host/core/FExport.h"

#include <QWidget>

class FEditor;

/** The gutter of an editor, with the numbers of its lines. The number of the line with the cursor is emphasised. */
class MERIX_EXPORT FLineNumberDisplay : public QWidget {
    Q_OBJECT

 public:
    explicit FLineNumberDisplay(FEditor* editor);

    /** Scrolls with the editor, or paints again what has changed. */
    void follow(const QRect& rect, int dy);
    /** The block whose number is emphasised; -1 for one that isn't known, so that all are painted again. */
    void setCurrentBlock(int block);

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    FEditor* mpEditor;
    int mCurrentBlock = -1;
};
