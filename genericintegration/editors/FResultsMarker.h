#pragma once

#include "genericintegration/marking/FResultMarks.h"

#include <QTextCursor>

class FGenIntResultsFileEdit;
class QColor;

/** Paints in a sample where the current value is read. What it painted before is painted over; the rest is left. */
class FResultsMarker {
 public:
    struct Colors {
        QColor background;
        QColor foreground;
    };

    /** The text outlives the object. */
    explicit FResultsMarker(FGenIntResultsFileEdit& edit) : mEdit(edit) {}

    void setColors(const Colors& line, const Colors& column, const Colors& anchor);
    /** Marks places. False, and nothing happens, if they are marked already. */
    bool paint(const FResultMarks& marks);
    /** Removes the marks; the text stays where it is. */
    void clear();
    /** Says that the text is another one. */
    void forget();

 private:
    void format(const std::vector<FTextRange>& ranges, const QTextCharFormat& format);

    FGenIntResultsFileEdit& mEdit;
    QTextCharFormat mLine;
    QTextCharFormat mColumn;
    QTextCharFormat mAnchor;
    FResultMarks mPainted;
    bool mIsPainted = false;
};
