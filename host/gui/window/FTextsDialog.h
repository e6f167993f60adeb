#pragma once

#include "host/core/FExport.h"

#include <QDialog>
#include <QMap>

class QListWidget;
class QPlainTextEdit;

/** Texts to read, such as the input files that a run would write: a list of their names, and the chosen one. */
class MERIX_EXPORT FTextsDialog : public QDialog {
    Q_OBJECT

 public:
    FTextsDialog(const QString& title, const QMap<QString, QString>& texts, QWidget* parent);

 private:
    QMap<QString, QString> mTexts;
    QListWidget* mpNames;
    QPlainTextEdit* mpText;
};
