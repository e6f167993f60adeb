#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * Questions and messages to the user. Buttons with an empty text don't exist. The answer is the number of the button, 0
 * for the first; if the user closed the dialog, it is `escape`. Without windows it is the default.
 */
class MERIX_EXPORT FIO {
 public:
    static int question(void* parent, const QString& title, const QString& text, const QString& button0,
                        const QString& button1, const QString& button2, int defaultButton = 0, int escape = -1,
                        bool* flag = nullptr, const QString& key = QString());
    static void information(void* parent, const QString& title, const QString& text, const QString& button0,
                            const QString& button1, const QString& button2, int defaultButton = 0, int escape = -1);
    /** Shows a warning, and returns the answer as a question does. */
    static int warning(void* parent, const QString& title, const QString& text, const QString& button0 = QString(),
                       const QString& button1 = QString(), const QString& button2 = QString(), int defaultButton = 0,
                       int escape = -1);
    /** The file that the user chose to open; empty if the dialog was cancelled. A filter is "Text (*.a *.b)". */
    static QString openFileName(void* parent, const QString& caption, const QString& startPath, const QString& filter);
};
