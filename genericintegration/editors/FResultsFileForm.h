#pragma once

#include <QFrame>

class FElidedLabel;
class FFormRow;
class FGroupBox;
class FResultsPreview;
class FSpinBox;
class FToolButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QScrollArea;

/**
 * The form of a result template: its widgets and their places. What they show and change is the business of its editor.
 * The rows scroll if there isn't room for all of them; what is found in the sample stays in view.
 */
class FResultsFileForm : public QFrame {
    Q_OBJECT

 public:
    /** @param averageRows  the field for the number of rows */
    explicit FResultsFileForm(QWidget* averageRows);

    /** Measures the labels again, after a change of the font. */
    void refreshLabels();

    QLineEdit* mNameEdit;
    QLineEdit* mPathEdit;
    QButtonGroup* mSeparatorMode;
    QRadioButton* mFindNumbersRadio;
    QRadioButton* mCustomRadio;
    FFormRow* mSpacesAndTabsRow;
    FFormRow* mRegExpRow;
    QCheckBox* mSpacesAndTabsCheck;
    QLineEdit* mRegExpEdit;
    FToolButton* mDeleteValueButton;
    QComboBox* mValueSelector;
    FToolButton* mAddValueButton;
    FFormRow* mTypeRow;
    FFormRow* mImportTypeRow;
    QComboBox* mTypeCombo;
    QComboBox* mImportTypeCombo;
    FFormRow* mLineRow;
    FSpinBox* mLineSpin;
    FSpinBox* mColumnSpin;
    FFormRow* mAnchorRow;
    QLineEdit* mAnchorEdit;
    FFormRow* mOccurrenceRow;
    QComboBox* mOccurrenceCombo;
    QCheckBox* mAverageCheck;
    FResultsPreview* mResultsTable;
    FElidedLabel* mPlaceLabel;  //!< where the current value is found

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    FGroupBox* makeGeneral();
    FGroupBox* makeSeparators();
    FGroupBox* makeValues(QWidget* averageRows);
    FGroupBox* makePreview();
    FFormRow* row(const QString& label, const QList<QWidget*>& fields, const QString& toolTip = QString());
    int labelWidth() const;
    void alignLabels();

    QList<QLabel*> mLabels;  //!< in their order in the form
    QWidget* mpRows;
    QWidget* mpValues = nullptr;
    QScrollArea* mpArea = nullptr;
    bool mHasScrolled = false;
};
