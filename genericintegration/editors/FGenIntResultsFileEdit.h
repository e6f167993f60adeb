#pragma once

#include "genericintegration/marking/FTextRange.h"
#include "host/gui/text/FEditor.h"

#include <vector>

class FGenIntResultsFileEditor;

/**
 * The sample text of a result template. It isn't edited: its editor marks in it where values are read, and the user
 * points at numbers.
 */
class FGenIntResultsFileEdit : public FEditor {
    Q_OBJECT

 public:
    explicit FGenIntResultsFileEdit(FGenIntResultsFileEditor* editor);

    /** Frames places: where the reader reads although something else is marked. */
    void setFramed(const std::vector<FTextRange>& places);
    /** Shows a range, and then as much before it as there is room for. The cursor goes to a position beside it. */
    void show(FTextRange range, int position);
    using QWidget::show;
    /** From the first line in view to the end of what is in view of the last one. */
    FTextRange inView() const;

 protected:
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    /** Position of the character at a point of the viewport. */
    int characterAt(const QPoint& point) const;
    QRect rectOf(const QTextCursor& selection) const;

    FGenIntResultsFileEditor* mEditor;
};
