#pragma once

#include "genericintegration/editors/FResultsFileSteps.h"
#include "genericintegration/setup/FAttribCmdSetAverageRows.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FView.h"
#include "host/gui/base/FObjectPage.h"
#include "host/gui/base/FPendingEdit.h"

#include <QColor>
#include <QFrame>

#include <memory>

class FAttributeEditor;
class FGenIntComputation;
class FGenIntResultsFileEdit;
class FResultsFileView;
class FSamplePointing;
class QComboBox;

/**
 * The page on which the user defines what is read from an output file: a form with the values and their places, a
 * preview of what the reader finds in the sample, and the sample, in which the present value is marked. The user points
 * at a number there to have it read.
 *
 * It reads the template only while it is shown. Each change by the user is a step.
 */
class FGenIntResultsFileEditor : public FClass<FGenIntResultsFileEditor, QFrame, FView>,
                                 public FAverageRowsEditor,
                                 public FObjectPage,
                                 public FPendingEdit {
    Q_OBJECT
    Q_PROPERTY(QColor highlight_color_AnchorBackground READ getAnchorBackground WRITE setAnchorBackground)
    Q_PROPERTY(QColor highlight_color_AnchorForeground READ getAnchorForeground WRITE setAnchorForeground)
    Q_PROPERTY(QColor highlight_color_ResultLineBackground READ getResultLineBackground WRITE setResultLineBackground)
    Q_PROPERTY(QColor highlight_color_ResultLineForeground READ getResultLineForeground WRITE setResultLineForeground)
    Q_PROPERTY(QColor highlight_color_ColumnBackground READ getColumnBackground WRITE setColumnBackground)
    Q_PROPERTY(QColor highlight_color_ColumnForeground READ getColumnForeground WRITE setColumnForeground)

 public:
    static FClassData mClass;
    static constexpr bool needsWindows = true;

    /** Makes the prototype. */
    FGenIntResultsFileEditor();
    FGenIntResultsFileEditor(QWidget* parent, const FExpr<FGenIntResultsFile>& file,
                             const FExpr<FGenIntComputation>& computation);
    ~FGenIntResultsFileEditor() override;

    void setResultsFile(const FExpr<FGenIntResultsFile>& file);
    FExpr<FGenIntResultsFile> getResultsFile() const override { return mResultsFile; }
    void setComputation(const FExpr<FGenIntComputation>& computation) { mComputation = computation; }

    /** Shows the template as it is now. */
    Q_INVOKABLE void refresh();
    /** Marks in the sample where the current value is read. */
    void highlightCurrentValue();
    void setResultsPreviewBlank();
    void averageChanged(const FExpr<FUnsigned>& rows) override;

    /** What the sample calls when the user points at it. */
    FSamplePointing& pointing() { return *mpPointing; }

    // ---- as a page ----
    QWidget* widget() override { return this; }
    void goTo(int line, int column) override;
    void letGo() override;
    void commitEdit() override;

    bool doUpdate() const override;

    // ---- colours, which a style sheet may set ----
    static QColor getAnchorBackground() { return sAnchorBackground; }
    static QColor getAnchorForeground() { return sAnchorForeground; }
    static QColor getResultLineBackground() { return sResultLineBackground; }
    static QColor getResultLineForeground() { return sResultLineForeground; }
    static QColor getColumnBackground() { return sColumnBackground; }
    static QColor getColumnForeground() { return sColumnForeground; }
    void setAnchorBackground(const QColor& color) { setColor(sAnchorBackground, color); }
    void setAnchorForeground(const QColor& color) { setColor(sAnchorForeground, color); }
    void setResultLineBackground(const QColor& color) { setColor(sResultLineBackground, color); }
    void setResultLineForeground(const QColor& color) { setColor(sResultLineForeground, color); }
    void setColumnBackground(const QColor& color) { setColor(sColumnBackground, color); }
    void setColumnForeground(const QColor& color) { setColor(sColumnForeground, color); }

 signals:
    void gotFocus();

 public slots:
    void fileNameChanged();
    void filePathChanged();
    void numberSeparatorChanged(int button);
    void spacesAndTabsSeparatorChanged();
    void regExpSeparatorChanged();
    void selectValueViaCell(int row, int column);
    void selectValueViaHeader(int section);
    void deleteResultsValue(bool checked);
    void currentResultsValueChanged(const QString& name);
    void currentResultsValueNameChanged(const QString& name);
    void addResultsValue(bool checked);
    void valueTypeChanged(const QString& type);
    void fileImportTypeChanged(const QString& type);
    void resultsLineChanged(int line);
    void resultsColumnChanged(int column);
    void anchorChanged();
    void occurrenceChanged(const QString& occurrence);
    void averageToggled(bool isOn);
    void refreshLabels();
    /** Makes a parameter that reads the value of the row under the mouse. */
    void createParam();
    void refreshResultsPreview();

 protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    void refreshAnchor();
    void refreshAverage();
    void refreshFileImportType();
    void refreshResultsValues();
    void refreshResultsValueType();
    void refreshValuesSelector();
    /** The item to choose when the present one goes. */
    static QString getNextItemAferDeletion(const QComboBox* combo);

 private:
    static QColor sAnchorBackground;
    static QColor sAnchorForeground;
    static QColor sResultLineBackground;
    static QColor sResultLineForeground;
    static QColor sColumnBackground;
    static QColor sColumnForeground;

    void takeName();
    void init();
    void connectForm();
    void connectSample();
    void listen();
    void setColor(QColor& color, const QColor& wanted);
    void takeColors();

    FExpr<FGenIntResultsFileValue> currentValue() const { return mSteps.currentValue(); }
    void createParamOf(int row);

    void refreshAll();
    /** Drops what belongs to the value that was the current one. */
    void valueLeft();
    void showCurrentValue();
    void showName();
    /** After a change of the place of the current value. */
    void placeChanged();
    /** After a change of what else decides what is read. */
    void readingChanged();
    void followRows();

    FExpr<FGenIntResultsFile> mResultsFile;
    FExpr<FGenIntComputation> mComputation;
    FResultsFileSteps mSteps{mResultsFile};
    FResultsFileView* mpView = nullptr;
    FGenIntResultsFileEdit* mEdit = nullptr;  //!< of the sample
    std::unique_ptr<FSamplePointing> mpPointing;
    FExpr<FAttribCmdSetAverageRows> mAverageCmd;
    FAttributeEditor* mAverageAttributeEditor = nullptr;
    QString mLastType;     //!< the type that the current value had before its average was switched on
    bool mIsStale = true;  //!< what is shown may not be what the template holds
};
