#pragma once

#include "host/core/FExport.h"

#include <QSettings>

/**
 * The settings of the program, which outlive it. They lie in merix/merix.ini of the user's configuration folder, unless
 * the environment variable MERIX_SETTINGS names another file, or `setFile` does.
 */
class MERIX_EXPORT FIni : public QSettings {
 public:
    FIni();

    /** Objects made from now on use that file; an empty name brings back the usual one. */
    static void setFile(const QString& path);
};
