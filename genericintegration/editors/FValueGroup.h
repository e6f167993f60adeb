#pragma once

#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/templates/FGenIntResultsFileValue.h"
#include "host/gui/base/FGroupBox.h"

class FAttributeEditor;
class FCommittedEdit;
class FFormRow;
class FSpinBox;
class FValueSelector;
class QCheckBox;
class QComboBox;

/** The values of a result template: a selector, and where the current value is read. Showing emits no signal. */
class FValueGroup : public FGroupBox {
    Q_OBJECT

 public:
    using Value = FExpr<FGenIntResultsFileValue>;

    /** @param averageRows  the field for the number of rows */
    explicit FValueGroup(FAttributeEditor* averageRows);

    FValueSelector& selector() { return *mpSelector; }

    // ---- the current value; may be empty ----
    void showType(const Value& value);
    void showImportType(const Value& value);
    /** Line and column. */
    void showNumbers(const Value& value);
    void showAnchor(const Value& value);
    /** What isn't used for an average is hidden while there is one. */
    void showAverage(const Value& value);
    void enableFields(bool hasValue);

    /** Where a value is read, as it is shown. */
    FValueDescription place() const;
    /** The import type that is shown, for a value that becomes the name of a file. */
    QString importType() const;
    /** Completes what is being typed. */
    void commit();
    /** A field with a fault below it; null if there is none. */
    QWidget* faultyField() const;

 signals:
    void typeChosen(const QString& type);
    void importTypeChosen(const QString& type);
    void lineTurned(int line);
    void columnTurned(int column);
    void anchorEntered();
    void occurrenceChosen(const QString& occurrence);
    void averageToggled(bool isOn);

 private:
    void addRows();
    void connectFields();

    FValueSelector* mpSelector;
    QComboBox* mpType;
    QComboBox* mpImportType;
    FSpinBox* mpLine;
    FSpinBox* mpColumn;
    FCommittedEdit* mpAnchor;
    QComboBox* mpOccurrence;
    QCheckBox* mpAverage;
    FAttributeEditor* mpAverageRows;
    FFormRow* mpTypeRow;
    FFormRow* mpImportTypeRow;
    FFormRow* mpLineRow;
    FFormRow* mpAnchorRow;
    FFormRow* mpOccurrenceRow;
};
