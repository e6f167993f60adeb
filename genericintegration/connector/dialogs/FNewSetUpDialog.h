#pragma once

#include "genericintegration/connector/dialogs/FNewSetUp.h"
#include "host/core/FQueuedCall.h"

#include <QDialog>

class FSampleList;
class FStateLabel;
class QLineEdit;
class QPushButton;
struct FProgramSearch;

/** Asks for a program and its sample files. */
class FNewSetUpDialog : public QDialog {
    Q_OBJECT

 public:
    explicit FNewSetUpDialog(QWidget* parent);

    void accept() override;

 signals:
    void confirmed(const FNewSetUp& setUp);

 private:
    QLayout* makeProgramRow();
    FNewSetUp entered() const;
    void askProgram();
    void lookUp();
    static QString whyNotFound(const FProgramSearch& search);
    /** What to do for the standard input; empty if the file is there. */
    static QString missingInput(const FNewSetUp& setUp);

    QLineEdit* mpProgram;
    FStateLabel* mpFound;
    FSampleList* mpInputs;
    FSampleList* mpOutputs;
    QLineEdit* mpName;
    QPushButton* mpCreate = nullptr;
    FQueuedCall mLookUp{[this] { lookUp(); }};
};
