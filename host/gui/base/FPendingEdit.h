#pragma once

#include "host/core/FExport.h"

#include <QString>

class QWidget;

/** An editor that may hold typed text which isn't in the model yet. */
class MERIX_EXPORT FPendingEdit {
 public:
    FPendingEdit();
    virtual ~FPendingEdit();
    FPendingEdit(const FPendingEdit&) = delete;
    FPendingEdit& operator=(const FPendingEdit&) = delete;

    /** Puts the text into the model; does nothing if it is there already. */
    virtual void commitEdit() = 0;

    /** A text that was refused, and is still shown in place of the value in the model. */
    struct Refusal {
        QString name;   //!< of the value, for the user
        QString fault;  //!< why the text is refused; empty if there is none
        QString used;   //!< the value in the model
    };
    virtual Refusal refusal() const { return {}; }
    /** Gives the focus to the field that shows the refused text, and returns it. */
    virtual QWidget* focusRefused() { return nullptr; }

    /** The first editor that shows a refused text; null if none does. */
    static FPendingEdit* findRefusing();
    /** Has all editors put their text into the model. */
    static void commitAll();
};
