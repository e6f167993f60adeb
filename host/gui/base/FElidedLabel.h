#pragma once

#include "host/gui/base/FStateLabel.h"

/** A text in one line that ends in "…" where there is no room for all of it; the tool tip has the rest. */
class MERIX_EXPORT FElidedLabel : public FStateLabel {
    Q_OBJECT

 public:
    FElidedLabel(FStateColor::State state, QWidget* parent);

    void show(const QString& text);
    using QWidget::show;

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void elide();

    QString mText;
};
