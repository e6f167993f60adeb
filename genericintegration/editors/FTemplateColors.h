#pragma once

#include <QColor>

/** The colours of input templates, shared by all their editors; those of a light palette, see FTextColor. */
struct FTemplateColors {
    QColor tagForeground{Qt::blue};
    QColor tagBackground{Qt::white};
    QColor tagErrorForeground{Qt::darkRed};
    QColor tagErrorBackground{Qt::white};
    QColor valueForeground{Qt::darkGreen};
    QColor valueBackground{Qt::white};
    QColor valueErrorForeground{Qt::darkRed};
    QColor valueErrorBackground{Qt::white};
    QColor possibleValueForeground{Qt::black};
    QColor possibleValueBackground{207, 246, 207};
    QColor buttonTagColor{Qt::blue};
    QColor buttonEntryColor{Qt::darkGreen};

    static FTemplateColors& instance() {
        static FTemplateColors colors;
        return colors;
    }
};
