#pragma once

#include "genericintegration/connector/layout/FSoftConGridLayout.h"

class FSoftConMediumGridLayout : public FSoftConGridLayout {
 public:
    int getIconWidth() const override { return 75; }
    double getMinAreaWidth() const override { return 300; }
    double getMinAreaHeight() const override { return 266; }
    FSoftConLayoutIconTextMeasurements getIconTextMeasurements() const override {
        return {18, 14, {8, 40}, {8, 58}, true};
    }
    QString getSizeName() const override { return QStringLiteral("Medium"); }
};
