#pragma once

#include "host/core/FExport.h"

#include <QSize>
#include <QString>
#include <QStringList>

class FMainWindow;

/** The program with its window, from its start to its end. A QApplication must exist, and outlive it. */
class MERIX_EXPORT FGuiSession {
 public:
    QString project;     //!< opened at start; empty for none
    QString script;      //!< executed at start, after the project was opened; empty for none
    QStringList shown;   //!< panels, actions to trigger and objects to select, by their names and in this order
    QString screenshot;  //!< the window is saved as this picture, and the program ends; empty for none
    QSize size;          //!< of the window; invalid for the usual one

    /** Returns the exit code of the program. */
    int run() const;

 private:
    void show(FMainWindow& window) const;
};
