#pragma once

#include "host/gui/fields/FAttributeEditor.h"

class QAction;
class QLineEdit;

/** A field with one line of text. */
class MERIX_EXPORT FLineField : public FAttributeEditor {
    Q_OBJECT

 protected:
    explicit FLineField(const FAttribCmd& command);

    void showValue(const FExprBase& value, bool isCommon) override;
    bool differsFromShown() const override;
    /** The text that the line shows for a value. */
    virtual QString textOf(const FExprBase& value) const = 0;
    QString text() const;
    QLineEdit* line() const { return mpLine; }

 private:
    QLineEdit* mpLine;
    QString mShown;
};
