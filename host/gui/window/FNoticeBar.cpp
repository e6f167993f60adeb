#include "host/gui/window/FNoticeBar.h"

#include "host/gui/base/FIcons.h"
#include "host/gui/base/FSeverityLook.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

FNoticeBar::FNoticeBar(QWidget* parent)
    : QFrame(parent), mpSign(new QLabel(this)), mpText(new QLabel(this)), mpClose(new QToolButton(this)) {
    setObjectName(QStringLiteral("notices"));
    setFrameShape(StyledPanel);
    auto* row = new QHBoxLayout(this);
    row->addWidget(mpSign);
    mpText->setObjectName(QStringLiteral("noticeText"));
    mpText->setTextFormat(Qt::RichText);
    mpText->setWordWrap(true);
    mpText->setTextInteractionFlags(Qt::TextBrowserInteraction);
    row->addWidget(mpText, 1);
    mpClose->setAutoRaise(true);
    mpClose->setToolTip(QStringLiteral("Close this notice"));
    mpClose->setAccessibleName(mpClose->toolTip());
    row->addWidget(mpClose);
    connect(mpClose, &QToolButton::clicked, this, &QWidget::hide);
    connect(mpText, &QLabel::linkActivated, this, [this] {
        hide();
        // It may show another notice, in place of the one that it belongs to.
        if (const auto mend = mNotice.mend) {
            mend();
        }
    });
    // What a notice depends on can be anything, and not all of it reports its changes.
    constexpr int interval = 250;  // milliseconds
    mCheck.setInterval(interval);
    connect(&mCheck, &QTimer::timeout, this, [this] {
        if (isHidden() || !mNotice.holds()) {
            mCheck.stop();
            hide();
        }
    });
    hide();
}

void FNoticeBar::showNotice(const Notice& notice) {
    mNotice = notice;
    notice.holds ? mCheck.start() : mCheck.stop();
    // Not before: at the start of the program, there is nothing to show.
    const int size = fontMetrics().height();
    mpSign->setPixmap(FSeverityLook::warningIcon().pixmap(size, size));
    mpClose->setIcon(FIcons::get(QStringLiteral("window-close")));
    const QString link =
        notice.remedy.isEmpty() ? QString() : QStringLiteral(" <a href=\"#\">%1</a>").arg(notice.remedy);
    // Blanks are part of a value for a fixed column.
    mpText->setText(QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>").arg(notice.text.toHtmlEscaped()) +
                    link);
    show();
}

QString FNoticeBar::text() const {
    return isHidden()                 ? QString()
           : mNotice.remedy.isEmpty() ? mNotice.text
                                      : mNotice.text + QLatin1Char(' ') + mNotice.remedy;
}
