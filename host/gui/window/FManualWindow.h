#pragma once

#include "host/core/FExport.h"

#include <QDialog>

class FManualText;

/** The manual, in a window of its own, so that its steps can be followed beside the window of the program. */
class MERIX_EXPORT FManualWindow : public QDialog {
    Q_OBJECT

 public:
    explicit FManualWindow(QWidget* parent);

    /** Shows a page of the documentation that comes with the program, by its path there; false if it isn't installed.
     */
    bool showPage(const QString& page);

 private:
    FManualText* mpText;
};
