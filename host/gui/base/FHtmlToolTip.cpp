#include "host/gui/base/FHtmlToolTip.h"

#include <QCursor>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

FHtmlToolTip::FHtmlToolTip(const QString& html, QWidget* parent) : QFrame(parent, Qt::Popup) {
    setObjectName(QStringLiteral("htmlToolTip"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Plain));
    auto* text = new QTextBrowser(this);
    text->setAccessibleName(QStringLiteral("Help"));
    text->setFrameShape(QFrame::NoFrame);
    text->setOpenExternalLinks(true);
    text->setHtml(html);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text);
    constexpr int characters = 60;
    constexpr int lines = 24;  // at most
    const int width = characters * fontMetrics().averageCharWidth();
    // The document of the browser has the width of the browser, whatever it was set to.
    QTextDocument document;
    document.setDefaultFont(text->font());
    document.setHtml(html);
    document.setTextWidth(width);
    const int height = std::min(static_cast<int>(document.size().height()), lines * fontMetrics().lineSpacing());
    resize(width + fontMetrics().height(), height + fontMetrics().height());
}

void FHtmlToolTip::show(const QString& html, QWidget* parent) {
    auto* tip = new FHtmlToolTip(html, parent);
    const QRect screen = parent->screen()->availableGeometry();
    QRect place(QCursor::pos(), tip->size());
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    tip->move(place.topLeft());
    tip->setVisible(true);
}
