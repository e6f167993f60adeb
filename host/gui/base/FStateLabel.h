#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FStateColor.h"

#include <QLabel>

/** A text in the colour of a state, which follows the palette. */
class MERIX_EXPORT FStateLabel : public QLabel {
 public:
    FStateLabel(FStateColor::State state, QWidget* parent);
    void setState(FStateColor::State state);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void takeColor();

    FStateColor::State mState;
};
