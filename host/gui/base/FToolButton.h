#pragma once

#include "host/core/FExport.h"

#include <QToolButton>

/** A flat button with an icon, whose text is its tool tip and its name. A click leaves the focus where it is. */
class MERIX_EXPORT FToolButton : public QToolButton {
    Q_OBJECT

 public:
    /** @param icon  as FIcons knows it */
    FToolButton(const QString& id, const QString& icon, const QString& text, QWidget* parent = nullptr);
    /** Makes a button at the end of a row of widgets. */
    static FToolButton* addTo(QLayout& row, const QString& id, const QString& icon, const QString& text);
};
