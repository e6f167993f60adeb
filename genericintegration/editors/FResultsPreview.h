#pragma once

#include "host/core/FExpr.h"
#include "host/run/FTableData.h"

#include <QTableWidget>

/** What the reader finds in the sample of a result template: a row for each value, with a button to use its number. */
class FResultsPreview : public QTableWidget {
    Q_OBJECT

 public:
    FResultsPreview();

    /** Shows a table that the reader has filled. */
    void show(const FExpr<FTableData>& table);
    using QWidget::show;
    /** The table that is shown; empty if there is no value. */
    const FExpr<FTableData>& table() const { return mPreviewTable; }
    /** Says that there is no value. */
    void setBlank();
    /** Forgets the table; what is shown of it stays. */
    void letGo() { mPreviewTable = {}; }
    /** Adds a note to the tool tip of a value's row, in place of the note that a row had before. */
    void setNote(const QString& value, const QString& note);
    /** Selects the row of a value, if there is one. */
    void select(const QString& value);
    /** The name of a row's value. */
    QString valueOf(int row) const;
    /** The row of the button at a point of the screen; -1 if there is none. */
    int rowOfButtonAt(const QPoint& point) const;

 signals:
    /** The user has chosen a row, with the mouse or the keyboard. */
    void rowChosen(int row, int column);
    void headerChosen(int row);
    void parameterWanted(int row);

 protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void clearRows();
    /** Gives the names the room that the columns leave. */
    void fitNames();
    void fill();
    void addRow(int row);
    void showNote(int row, const QString& note);

    QString mNote;
    FExpr<FTableData> mPreviewTable;
};
