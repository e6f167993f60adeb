#pragma once

#include "genericintegration/io/FSeparatorSettings.h"
#include "host/gui/base/FGroupBox.h"

class FCommittedEdit;
class FFormRow;
class QButtonGroup;
class QCheckBox;
class QRadioButton;

/** How the lines of an output file are cut into columns. */
class FSeparatorGroup : public FGroupBox {
    Q_OBJECT

 public:
    FSeparatorGroup();

    void show(const FSeparatorSettings& separators);
    using QWidget::show;
    /** As they are shown, so that a mark can follow a separator while it is being changed. */
    FSeparatorSettings separators() const;
    /** Puts the focus into the group. */
    void focus();
    /** Completes what is being typed. */
    void commit();

 signals:
    void modeChosen(int button);
    void blanksToggled();
    void expressionEntered();

 private:
    void showRows();

    QButtonGroup* mpModes;
    QRadioButton* mpNumbers;
    QRadioButton* mpCustom;
    QCheckBox* mpBlanks;
    FCommittedEdit* mpExpression;
    FFormRow* mpBlanksRow;
    FFormRow* mpExpressionRow;
};
