#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * Questions and notices. Buttons with an empty text don't exist; the answer is the number of the button, 0 the first.
 * `escape` is the answer for a dialog that was closed, -1 for none.
 */
class MERIX_EXPORT FIO {
 public:
    static int question(void* parent, const QString& title, const QString& text, const QString& button0,
                        const QString& button1, const QString& button2, int defaultButton = 0, int escape = -1,
                        bool* flag = nullptr, const QString& key = QString());
    static void information(void* parent, const QString& title, const QString& text, const QString& button0,
                            const QString& button1, const QString& button2, int defaultButton = 0, int escape = -1);
    /** The file that the user chooses to open; empty if the dialog was cancelled. A filter is "Text (*.a *.b)". */
    static QString openFileName(void* parent, const QString& caption, const QString& startPath, const QString& filter);
};
