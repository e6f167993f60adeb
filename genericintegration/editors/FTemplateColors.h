#pragma once

#include <QColor>
#include <QObject>

/** The colours of input templates, shared by all their editors; those of a light palette, see FTextColor. */
class FTemplateColors : public QObject {
    Q_OBJECT

 public:
    static const FTemplateColors& instance() { return shared(); }
    /** Changes a colour of all editors. */
    static void set(QColor FTemplateColors::*color, const QColor& value);

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

 signals:
    void changed();

 private:
    FTemplateColors() = default;
    static FTemplateColors& shared();
};
