#pragma once

#include "host/core/FExport.h"

#include <QPlainTextDocumentLayout>

/**
 * The layout of a text whose lines aren't wrapped. Its width is that of the widest line that was laid out since the
 * text was last replaced as a whole. The base looks for the widest line among all, which takes long in a large text,
 * each time the widest one becomes shorter: at every Enter or Backspace in it.
 */
class MERIX_EXPORT FLineLayout : public QPlainTextDocumentLayout {
    Q_OBJECT

 public:
    explicit FLineLayout(QTextDocument* text);

    QSizeF documentSize() const override;
    QRectF blockBoundingRect(const QTextBlock& block) const override;

 protected:
    void documentChanged(int from, int removed, int added) override;

 private:
    void layOut(QTextBlock block) const;
    void reportSize() const;

    int mBlocks = 1;
    mutable qreal mWidth = 0;
    mutable bool mIsReporting = false;
};
