#pragma once

#include "host/core/FExport.h"

#include <QPlainTextEdit>

#include <functional>
#include <vector>

class FLineNumberDisplay;

/**
 * A text editor with a gutter for line numbers. Lines aren't wrapped. It keeps no undo steps of its own: what it edits
 * belongs to the project, and so does undo.
 */
class MERIX_EXPORT FEditor : public QPlainTextEdit {
    Q_OBJECT

 public:
    /** A block that is in view, in the coordinates of the gutter. */
    struct ShownBlock {
        int number;  //!< from 0
        int top;
        int height;  //!< of its first line
    };

    /**
     * @param digits  how many digits the gutter has room for at least
     * @param showsLineNumbers  whether the gutter is there at first
     */
    FEditor(int digits, bool showsLineNumbers, QWidget* parent);

    /**
     * Has the gutter show other numbers than those of the blocks: a function gives the number of a block, which counts
     * from 0; for 0 nothing is shown.
     */
    void setLineNumbers(std::function<int(int block)> numberOf);
    int lineNumberOf(int block) const { return mNumberOf ? mNumberOf(block) : block + 1; }
    bool areLineNumbersShown() const { return mShowsLineNumbers; }
    void setLineNumbersShown(bool shown);
    /** Width of the gutter in pixels; 0 if it isn't shown. */
    int lineNumberAreaWidth() const;
    FLineNumberDisplay* lineNumberDisplay() const { return mpGutter; }
    static int gutterMargin(const QFontMetrics& metrics) { return metrics.averageCharWidth(); }

    /** The blocks in a part of the gutter. */
    std::vector<ShownBlock> shownBlocks(const QRect& rect) const;
    /** Moves the cursor to a place, counted from 1, and scrolls it to the middle. Column 0 stands for the line. */
    void goTo(int line, int column);
    /** The same with a position of the document. */
    void goTo(int position);

 public slots:
    /** Makes room for the numbers of that many blocks; 0 for those that there are. */
    void updateLineNumberAreaWidth(int blocks);

 protected:
    QMimeData* createMimeDataFromSelection() const override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    int mDigits;
    bool mShowsLineNumbers;
    std::function<int(int block)> mNumberOf;
    FLineNumberDisplay* mpGutter;
};
