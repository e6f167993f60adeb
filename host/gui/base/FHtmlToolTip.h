#pragma once

#include "host/core/FExport.h"

#include <QFrame>

/** A text in HTML beside the pointer, which the user can scroll and follow links of. Any click outside closes it. */
class MERIX_EXPORT FHtmlToolTip : public QFrame {
    Q_OBJECT

 public:
    /** Shows the text; the object deletes itself when it is closed. */
    static void show(const QString& html, QWidget* parent);

 private:
    FHtmlToolTip(const QString& html, QWidget* parent);
};
