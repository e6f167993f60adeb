#pragma once

#include "host/core/FExport.h"

/** An editor that may hold typed text which isn't in the model yet. */
class MERIX_EXPORT FPendingEdit {
 public:
    FPendingEdit();
    virtual ~FPendingEdit();
    FPendingEdit(const FPendingEdit&) = delete;
    FPendingEdit& operator=(const FPendingEdit&) = delete;

    /** Puts the text into the model; does nothing if it is there already. */
    virtual void commitEdit() = 0;

    /** Has all editors put their text into the model. */
    static void commitAll();
};
