#pragma once

#include "host/gui/fields/FAttributeEditor.h"

#include <QStringList>

class QPlainTextEdit;

/** A list of texts, one in each line. Enter begins a new line; Ctrl+Enter, or leaving the field, commits. */
class MERIX_EXPORT FLinesField : public FAttributeEditor {
    Q_OBJECT

 public:
    explicit FLinesField(const FAttribCmd& command);

 protected:
    void showValue(const FExprBase& value, bool isCommon) override;
    FExprBase enteredValue(QString& fault) const override;
    bool differsFromShown() const override;
    bool isCommitKey(const QKeyEvent& key) const override;
    void changeEvent(QEvent* event) override;

 private:
    void fitHeight();

    QPlainTextEdit* mpEdit;
    QString mShown;
};
