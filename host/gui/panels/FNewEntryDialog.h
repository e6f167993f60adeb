#pragma once

#include "host/core/FExport.h"
#include "host/design/FDefinition.h"

#include <QDialog>

class FStateLabel;
class QComboBox;
class QLineEdit;
class QSpinBox;

/** Asks what a new entry of a definition is, and adds it. What is refused stays in the fields. */
class MERIX_EXPORT FNewEntryDialog : public QDialog {
    Q_OBJECT

 public:
    /** @param path  of the entry, as proposed to the user */
    FNewEntryDialog(FDefinition& definition, const QString& path, QWidget* parent);

    void accept() override;

 signals:
    /** @param path  of the entry in the definition */
    void added(const QString& path);

 private:
    QLineEdit* makeLine(const QString& id, const QString& label, const QString& tip);
    QSpinBox* makeCount(const QString& id, const QString& label, int least);
    void proposeDefault();

    FExpr<FDefinition> mDefinition;
    QLineEdit* mpPath;
    QComboBox* mpType;
    QLineEdit* mpDefault;
    QSpinBox* mpLeast;
    QSpinBox* mpMost;
    QLineEdit* mpDescription;
    FStateLabel* mpFault;
};
