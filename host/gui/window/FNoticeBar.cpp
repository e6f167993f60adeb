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
        if (mMend) {
            mMend();
        }
    });
    hide();
}

void FNoticeBar::showNotice(const QString& text, const QString& remedy, std::function<void()> mend) {
    mMend = std::move(mend);
    // Not before: at the start of the program, there is nothing to show.
    const int size = fontMetrics().height();
    mpSign->setPixmap(FSeverityLook::warningIcon().pixmap(size, size));
    mpClose->setIcon(FIcons::get(QStringLiteral("window-close")));
    const QString link = remedy.isEmpty() ? QString() : QStringLiteral(" <a href=\"#\">%1</a>").arg(remedy);
    mpText->setText(text.toHtmlEscaped() + link);
    show();
}

QString FNoticeBar::text() const {
    return isHidden() ? QString() : mpText->text();
}
