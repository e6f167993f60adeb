#include "genericintegration/editors/FResultsPreview.h"

#include "genericintegration/marking/FPreviewRow.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/text/FTextColor.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace {

enum Column { valueColumn, typeColumn, buttonColumn, columns };

QTableWidgetItem* headerItem(const QString& text, bool isItalic) {
    auto* item = new QTableWidgetItem(text);
    QFont font = item->font();
    font.setItalic(isItalic);
    item->setFont(font);
    return item;
}

void showState(QTableWidgetItem& item, const FPreviewRow& row) {
    if (row.state != FPreviewRow::State::Found) {
        item.setBackground(FStateColor::backgroundOf(
            row.state == FPreviewRow::State::Missing ? FStateColor::State::Bad : FStateColor::State::Warning));
    }
    if (!row.reason.isEmpty()) {
        item.setToolTip(row.header + QLatin1Char(' ') + row.reason +
                        (item.toolTip().isEmpty() ? QString() : QLatin1Char('\n') + item.toolTip()));
    }
}

}  // namespace

FResultsPreview::FResultsPreview() {
    setObjectName(QStringLiteral("resultsPreview"));
    setAccessibleName(QStringLiteral("Values found in the sample"));
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    // The button between the headers, which Qt gives no name.
    for (auto* corner : findChildren<QAbstractButton*>()) {
        corner->setAccessibleName(QStringLiteral("Select all"));
    }
    constexpr QSize least(100, 50);
    setMinimumSize(least);
    connect(this, &QTableWidget::cellClicked, this, &FResultsPreview::rowChosen);
    connect(verticalHeader(), &QHeaderView::sectionClicked, this, &FResultsPreview::headerChosen);
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
        if (hasFocus() && row >= 0) {
            emit rowChosen(row, column);
        }
    });
}

void FResultsPreview::clearRows() {
    for (int row = rowCount() - 1; row >= 0; --row) {
        // The widget goes from the event loop, since its click may be the cause.
        removeCellWidget(row, buttonColumn);
        removeRow(row);
    }
    clear();
}

void FResultsPreview::setBlank() {
    const QSignalBlocker blocker(this);
    mPreviewTable = {};
    clearRows();
    setColumnCount(2);
    setHorizontalHeaderItem(valueColumn, headerItem(QStringLiteral("Value"), true));
    setHorizontalHeaderItem(typeColumn, headerItem(QStringLiteral("Type"), false));
    setRowCount(1);
    setVerticalHeaderItem(0, headerItem(QStringLiteral("Name"), false));
    setItem(0, valueColumn, headerItem(QStringLiteral("please add a value"), true));
    setItem(0, typeColumn, new QTableWidgetItem);
    resizeColumnsToContents();
    resizeRowsToContents();
    fitNames();
}

void FResultsPreview::show(const FExpr<FTableData>& table) {
    mPreviewTable = table;
    fill();
}

void FResultsPreview::fill() {
    const QSignalBlocker blocker(this);
    clearRows();
    setColumnCount(mPreviewTable->count() + 2);
    setHorizontalHeaderItem(valueColumn, headerItem(QStringLiteral("Value"), true));
    setHorizontalHeaderItem(typeColumn, headerItem(QStringLiteral("Type"), false));
    setHorizontalHeaderItem(buttonColumn, headerItem(QString(), false));
    setRowCount(mPreviewTable->getRowCount());
    for (int row = 0; row < rowCount(); ++row) {
        addRow(row);
    }
    resizeColumnsToContents();
    resizeRowsToContents();
    fitNames();
}

void FResultsPreview::addRow(int row) {
    const FPreviewRow content(*mPreviewTable.ptr(), row);
    auto* value = headerItem(content.value, content.isNotANumber);
    value->setTextAlignment(Qt::AlignCenter);
    value->setToolTip(content.toolTip);
    if (content.isNotANumber) {
        value->setForeground(FTextColor::foreground(Qt::red));
    }
    if (content.state != FPreviewRow::State::Found) {
        value->setIcon(FIcons::get(content.state == FPreviewRow::State::Missing ? QStringLiteral("dialog-error")
                                                                                : QStringLiteral("dialog-warning")));
    }
    showState(*value, content);
    setItem(row, valueColumn, value);
    auto* type = new QTableWidgetItem(content.type);
    showState(*type, content);
    setItem(row, typeColumn, type);
    auto* header = new QTableWidgetItem(content.header);
    header->setToolTip(content.reason.isEmpty() ? content.header : QString());
    showState(*header, content);
    setVerticalHeaderItem(row, header);
    auto* button = new FToolButton(QStringLiteral("createParameter%1").arg(row), QStringLiteral("parameter"),
                                   QStringLiteral("Create parameter"), this);
    button->setAccessibleName(QStringLiteral("Create parameter that reads %1").arg(content.header));
    button->setEnabled(content.canBeParameter);
    connect(button, &FToolButton::clicked, this, [this, row] { emit parameterWanted(row); });
    setCellWidget(row, buttonColumn, button);
}

QString FResultsPreview::valueOf(int row) const {
    const QTableWidgetItem* header = mPreviewTable ? verticalHeaderItem(row) : nullptr;
    return header ? header->text() : QString();
}

int FResultsPreview::rowOfButtonAt(const QPoint& point) const {
    const QPoint place = viewport()->mapFromGlobal(point);
    return columnAt(place.x()) >= buttonColumn ? rowAt(place.y()) : -1;
}

void FResultsPreview::setNote(const QString& value, const QString& note) {
    const QSignalBlocker blocker(this);
    for (int row = 0; row < rowCount(); ++row) {
        showNote(row, valueOf(row) == value ? note : QString());
    }
    mNote = note;
}

void FResultsPreview::showNote(int row, const QString& note) {
    for (QTableWidgetItem* item :
         {verticalHeaderItem(row), this->item(row, valueColumn), this->item(row, typeColumn)}) {
        if (!item) {
            continue;
        }
        QStringList lines = item->toolTip().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        lines.removeAll(mNote);
        lines.append(note);
        item->setToolTip(lines.join(QLatin1Char('\n')).trimmed());
    }
}

void FResultsPreview::select(const QString& value) {
    const QSignalBlocker blocker(this);
    clearSelection();
    for (int row = 0; row < rowCount(); ++row) {
        if (!value.isEmpty() && valueOf(row) == value) {
            setCurrentCell(row, valueColumn);
        }
    }
}

void FResultsPreview::fitNames() {
    constexpr int shortest = 8;  // characters
    const int bar = verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0;
    const int room = width() - 2 * frameWidth() - bar - horizontalHeader()->length();
    const int widest = std::max(room, shortest * fontMetrics().averageCharWidth());
    verticalHeader()->setMaximumWidth(widest);
    // The width that a header asks for may be a fraction of a pixel less than what its text needs.
    const bool isCut = verticalHeader()->sizeHint().width() > widest;
    verticalHeader()->setTextElideMode(isCut ? Qt::ElideMiddle : Qt::ElideNone);
    updateGeometries();
}

void FResultsPreview::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    fitNames();
    scrollTo(currentIndex());
}

void FResultsPreview::changeEvent(QEvent* event) {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && mPreviewTable) {
        fill();
    }
}
