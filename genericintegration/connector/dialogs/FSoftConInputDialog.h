#pragma once

#include "genericintegration/connector/dialogs/FSoftConResultFilesDialog.h"

class QCheckBox;

/** Asks for input files, and whether they are to become templates. */
class FSoftConInputDialog : public FSoftConResultFilesDialog {
    Q_OBJECT

 public:
    /** @param convertDefault  whether the box is checked if the user has never accepted the dialog */
    FSoftConInputDialog(QWidget* parent, const QString& caption, const QString& directory, const QString& filter,
                        bool convertDefault);

    void accept() override;
    bool isConverting() const;
    /** Whether the dialog was accepted with names of files none of which exists. */
    bool areNonExistingAccepted() const { return mNonExistingAccepted; }

 private:
    QCheckBox* mConvertCheck;
    bool mNonExistingAccepted = false;
};
