#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FNumber.h"

#include <QSettings>

/**
 * The settings of the program, kept between its runs in merix/merix.ini of the user's configuration folder. The
 * environment variable MERIX_SETTINGS or `setFile` names another file.
 */
class MERIX_EXPORT FIni : public QSettings {
 public:
    FIni();

    /** Sets the file of all objects created from now on; an empty name restores the default. */
    static void setFile(const QString& path);
    /** A setting as an object; empty if it isn't set or is no whole number. */
    static FExpr<FInteger> getSetting(const QString& key);
};
