#pragma once

#include "host/gui/text/FEditor.h"

#include <QTimer>

#include <functional>

class FRangeMarks;
class QScrollBar;
struct FWrittenText;

/** Shows beside a template what is written for it, with the values marked in both. Both scroll together. */
class FWrittenTextView : public FEditor {
    Q_OBJECT

 public:
    /** @param write  gives the present text */
    FWrittenTextView(FEditor& edit, std::function<FWrittenText()> write, QWidget* parent);

    /** Brings the text up to date a moment later, if it is shown. */
    void refreshSoon() { mTimer.start(); }
    void refresh();

 protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

 private:
    void couple(QScrollBar* from, QScrollBar* to);

    std::function<FWrittenText()> mWrite;
    QScrollBar* mTemplateBar;
    bool mIsScrolling = false;
    FRangeMarks* mpTags;
    FRangeMarks* mpValues;
    QTimer mTimer;
};
