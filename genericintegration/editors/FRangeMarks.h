#pragma once

#include "genericintegration/marking/FTextRange.h"

#include <QObject>

#include <utility>
#include <vector>

class FEditor;

/** Marks parts of a text with a background; only those in view cost anything. */
class FRangeMarks : public QObject {
    Q_OBJECT

 public:
    explicit FRangeMarks(FEditor& editor);

    /** In ascending order, without overlaps. */
    void setRanges(std::vector<FTextRange> ranges);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void markShown();
    void mark();

    FEditor& mEditor;
    std::vector<FTextRange> mRanges;
    std::pair<int, int> mShown{-1, -1};  //!< positions between which they are marked
};
