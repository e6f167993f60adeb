#include "genericintegration/editors/FPreviewGroup.h"

#include "genericintegration/editors/FFormFields.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/io/FFoundValue.h"
#include "host/gui/base/FElidedLabel.h"
#include "host/run/FValueRemark.h"

#include <QLayout>
#include <QScrollArea>

#include <cmath>

FPreviewGroup::FPreviewGroup()
    : FGroupBox(QStringLiteral("Results Preview")),
      mpTable(new FResultsPreview),
      mpPlace(FFormFields::named(new FElidedLabel(FStateColor::State::Secondary, this), "valuePlace",
                                 "Place of the value")) {
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("AttributeRow"));
    area->setProperty("last", true);
    area->setFrameStyle(0);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(mpTable);
    layout()->addWidget(area);
    layout()->addWidget(mpPlace);
}

void FPreviewGroup::showPlace(const FFoundValue& found, const QString& text, bool isFileName, bool isFramed) {
    constexpr int mostShown = 80;  // characters
    const bool isMissing = std::isnan(found.number);
    const bool isMean = found.rows && !isMissing;
    QString place = isMean             ? QStringLiteral("mean of %1 rows").arg(found.rows->count)
                    : found.column > 0 ? QStringLiteral("line %1, column %2").arg(found.line).arg(found.column)
                                       : QStringLiteral("not found");
    place += isFramed ? QStringLiteral(", in the frame") : QString();
    const QString shown =
        found.rows || text.isEmpty() ? place : QStringLiteral("%1: %2").arg(place, text.left(mostShown));
    const QString reason = isFileName ? QString() : FValueRemark::text(found, found.number);
    // The reason is about the number, or a sentence of its own.
    const QString subject = isMissing                   ? place + QLatin1Char(':')
                            : (found.flags & fileFlags) ? shown + QLatin1Char(';')
                            : isMean                    ? QStringLiteral("It")
                                                        : shown;
    mpPlace->show(reason.isEmpty() ? shown : QStringLiteral("%1 %2 %3").arg(QChar(0x26a0)).arg(subject, reason));
}

void FPreviewGroup::showNoPlace() {
    mpPlace->show(QString());
}
