#pragma once

#include "genericintegration/connector/layout/FSoftConGridLayout.h"

class FSoftConLargeGridLayout : public FSoftConGridLayout {
 public:
    int getIconWidth() const override { return 150; }
    double getMinAreaWidth() const override { return 300; }
    double getMinAreaHeight() const override { return 372; }
    FSoftConLayoutIconTextMeasurements getIconTextMeasurements() const override {
        return {35, 27, {16, 80}, {16, 120}, true};
    }
    QString getSizeName() const override { return QStringLiteral("Large"); }
};
