#pragma once

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/templates/FGenIntResultsFileValue.h"

#include <QFrame>

#include <vector>

class FElidedLabel;
class FFormRow;
class FGroupBox;
class FResultsPreview;
class FSpinBox;
struct FFoundValue;
class FToolButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QScrollArea;

/**
 * The form of a result template: its widgets, their places and what they show. Showing emits no signal of a widget, and
 * leaves alone what is being typed. What the widgets change is the business of their editor. The rows scroll if there
 * isn't room for all of them; what is found in the sample stays in view.
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

    // ---- the template ----
    void showFileName(const QString& fileName);
    void showSeparators(const FSeparatorSettings& separators);
    /** As they are shown, so that a mark can follow a separator while it is being changed. */
    FSeparatorSettings separators() const;

    // ---- the current value; may be empty ----
    using Value = FExpr<FGenIntResultsFileValue>;
    /**
     * Fills the selector.
     * @param all  in the order of the template: the data of each item is the number of its value there
     */
    void showValues(const std::vector<FExpr<FObject>>& values, const std::vector<FExpr<FObject>>& all,
                    const Value& current);
    void showType(const Value& value);
    void showImportType(const Value& value);
    /** Line and column. */
    void showNumbers(const Value& value);
    void showAnchor(const Value& value);
    /** What isn't used for an average is hidden while there is one. */
    void showAverage(const Value& value);
    void enableFields(bool hasValue);
    /** Says where the value is found in the sample, and what is suspicious about it. */
    void showPlace(const FFoundValue& found, const QString& text, bool isFileName);
    /** Where a value is read, as it is shown. */
    FValueDescription place() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    FGroupBox* makeGeneral();
    FGroupBox* makeSeparators();
    FGroupBox* makeValues(QWidget* averageRows);
    FGroupBox* makePreview();
    FFormRow* row(const QString& label, const QList<QWidget*>& fields, const QString& toolTip = QString());
    int labelWidth() const;
    void alignLabels();

    QWidget* mpAverageRows;
    QList<QLabel*> mLabels;  //!< in their order in the form
    QWidget* mpRows;
    QWidget* mpValues = nullptr;
    QScrollArea* mpArea = nullptr;
    bool mHasScrolled = false;
};
