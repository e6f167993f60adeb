#include "genericintegration/editors/FResultsFileForm.h"

#include "genericintegration/editors/FFileNameGroup.h"
#include "genericintegration/editors/FFormFields.h"
#include "genericintegration/editors/FPreviewGroup.h"
#include "genericintegration/editors/FSeparatorGroup.h"
#include "genericintegration/editors/FValueGroup.h"
#include "host/gui/base/FFormRow.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int paneMargin = 8;

/** Width of the widest label. */
int labelWidth() {
    return QFontMetrics(QApplication::font()).horizontalAdvance(QStringLiteral("Regular Expression"));
}

}  // namespace

FResultsFileForm::FResultsFileForm(FAttributeEditor* averageRows)
    : mpFileName(new FFileNameGroup),
      mpSeparators(new FSeparatorGroup),
      mpValues(new FValueGroup(averageRows)),
      mpPreview(new FPreviewGroup),
      mpRows(new QWidget),
      mpArea(FFormFields::named(new QScrollArea, "resultsForm", "Result template")) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(paneMargin, paneMargin, paneMargin, paneMargin);
    column->setSpacing(0);
    auto* rows = new QVBoxLayout(mpRows);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(mpFileName);
    rows->addWidget(mpSeparators);
    rows->addWidget(mpValues);
    mpArea->setFrameStyle(0);
    mpArea->setWidgetResizable(true);
    mpArea->setFocusPolicy(Qt::NoFocus);
    mpArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpArea->setWidget(mpRows);
    mpRows->installEventFilter(this);
    mpArea->viewport()->installEventFilter(this);
    connect(mpArea->verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { mHasScrolled = true; });
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(mpArea);
    parts->addWidget(mpPreview);
    parts->setChildrenCollapsible(false);
    constexpr int formShare = 3000;  // more than any screen has, so that only the ratio counts
    constexpr int previewShare = 2000;
    parts->setSizes({formShare, previewShare});
    column->addWidget(parts);
    alignLabels();
}

FValueSelector& FResultsFileForm::selector() {
    return mpValues->selector();
}

void FResultsFileForm::commit() {
    mpFileName->commit();
    mpSeparators->commit();
    mpValues->commit();
}

// ---- labels ----

void FResultsFileForm::alignLabels() {
    for (const FFormRow* row : findChildren<FFormRow*>()) {
        row->label()->setFixedWidth(labelWidth());
    }
}

void FResultsFileForm::refreshLabels() {
    alignLabels();
    // The labels of the two modes take the measure as their height, too.
    for (const FFormRow* row : mpSeparators->findChildren<FFormRow*>()) {
        if (qobject_cast<QRadioButton*>(row->label()->buddy())) {
            row->label()->setFixedHeight(labelWidth());
        }
    }
}

// ---- room ----

// The rows take no more height than they need, and are never cut off at the sides. For a fault below a field they
// scroll, so that the preview stays where it is.
void FResultsFileForm::fitRows() {
    if (mpValues->faultyField()) {
        QTimer::singleShot(0, this, [this] {
            if (QWidget* field = mpValues->faultyField()) {
                mpArea->ensureWidgetVisible(field);
            }
        });
        return;
    }
    mpArea->setMaximumHeight(mpRows->sizeHint().height());
    mpArea->setMinimumWidth(mpRows->minimumSizeHint().width() + mpArea->verticalScrollBar()->sizeHint().width());
}

// Where there isn't room for all of the rows, those of the values are in view until the user looks at others.
void FResultsFileForm::showValues() {
    const QWidget* focus = QApplication::focusWidget();
    const bool isElsewhere = focus && mpRows->isAncestorOf(focus) && !mpValues->isAncestorOf(focus);
    if (!mHasScrolled && !isElsewhere && !mpValues->faultyField()) {
        mpArea->verticalScrollBar()->setValue(mpValues->y());
    }
}

void FResultsFileForm::showFocused() {
    QWidget* focus = QApplication::focusWidget();
    if (focus && mpRows->isAncestorOf(focus)) {
        mpArea->ensureWidgetVisible(focus);
    }
}

bool FResultsFileForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mpRows && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)) {
        fitRows();
    }
    if (event->type() == QEvent::Resize) {
        QTimer::singleShot(0, this, &FResultsFileForm::showValues);
    }
    return QFrame::eventFilter(watched, event);
}
