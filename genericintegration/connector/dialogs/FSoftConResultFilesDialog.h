#pragma once

#include "genericintegration/connector/dialogs/FSoftConDialog.h"

/** Asks for files that need not exist yet, such as those that a program is going to write. */
class FSoftConResultFilesDialog : public FSoftConDialog {
    Q_OBJECT

 public:
    using FSoftConDialog::FSoftConDialog;

    /** Says on the button whether the files are new ones. */
    void lineEditChanged(const QString& text) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
