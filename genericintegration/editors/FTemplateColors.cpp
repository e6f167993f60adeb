#include "genericintegration/editors/FTemplateColors.h"

FTemplateColors& FTemplateColors::shared() {
    static FTemplateColors colors;
    return colors;
}

void FTemplateColors::set(QColor FTemplateColors::*color, const QColor& value) {
    FTemplateColors& colors = shared();
    if (colors.*color != value) {
        colors.*color = value;
        emit colors.changed();
    }
}
