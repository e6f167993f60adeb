#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

/** The clipboard of the desktop. Without windows there is none, and nothing happens. */
class MERIX_EXPORT FClipboard {
 public:
    static void setText(const QString& text) { FUserInterface::instance()->setClipboardText(text); }
};
