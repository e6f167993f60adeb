#pragma once

#include "host/gui/fields/FAttributeEditor.h"

class QComboBox;

/** A list of choices. A choice is committed at once. */
class MERIX_EXPORT FChoiceField : public FAttributeEditor {
    Q_OBJECT

 protected:
    explicit FChoiceField(const FAttribCmd& command);

    /** Shows a text as the present choice; "several" if there is no common one. */
    void showChoice(const QString& text, bool isCommon);
    /** What can be chosen now. */
    virtual QStringList choices() const = 0;
    QString chosen() const;

    bool differsFromShown() const override;
    bool isCommitKey(const QKeyEvent& key) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void fill();

    QComboBox* mpBox;
    QString mShown;
    bool mIsCommon = true;
};
