#include "host/gui/text/FManualText.h"

#include "host/gui/base/FFixedFont.h"

#include <QDesktopServices>
#include <QImageReader>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

namespace {

QString anchorOf(const QString& heading) {
    static const QRegularExpression other(QStringLiteral("[^\\w -]"), QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(other).replace(QLatin1Char(' '), QLatin1Char('-'));
}

bool isCodeBlock(const QTextBlock& block) {
    return block.isValid() && block.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
}

}  // namespace

FManualText::FManualText(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(this, &QTextBrowser::anchorClicked, this, &FManualText::follow);
    connect(this, &QTextBrowser::sourceChanged, this, [this] {
        styleTables();
        styleCode();
    });
}

void FManualText::follow(const QUrl& link) {
    QUrl page = source().resolved(link);
    const QString anchor = page.fragment();
    if (!page.isLocalFile() || !page.fileName().endsWith(QLatin1String(".md"))) {
        QDesktopServices::openUrl(page);
        return;
    }
    page.setFragment({});
    if (page != source()) {
        setSource(page, QTextDocument::MarkdownResource);
    }
    if (!anchor.isEmpty()) {
        goToHeading(anchor);
    }
}

void FManualText::styleTables() {
    constexpr int padding = 4;
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            QTextTableFormat format = table->format();
            format.setCellPadding(padding);
            format.setCellSpacing(0);
            format.setBorderCollapse(true);
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(palette().mid());
            table->setFormat(format);
        }
    }
}

void FManualText::styleCode() {
    QTextCursor cursor(document());
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const bool isCode = isCodeBlock(block);
        if (isCode) {
            cursor.setPosition(block.position());
            if (block.text().isEmpty() && isCodeBlock(block.previous()) && !isCodeBlock(block.next())) {
                // The line end before the closing fence makes an empty line.
                cursor.deletePreviousChar();
                block = cursor.block();
                continue;
            }
            QTextBlockFormat format = block.blockFormat();
            format.setBackground(palette().alternateBase());
            cursor.setBlockFormat(format);
        }
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            // Only code has a font of its own. That one needn't have characters of equal width.
            if (isCode || fragment.charFormat().hasProperty(QTextFormat::FontFamily)) {
                QTextCharFormat format;
                format.setFontFamily(FFixedFont::get().family());
                cursor.setPosition(fragment.position());
                cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
                cursor.mergeCharFormat(format);
            }
        }
    }
}

void FManualText::goToHeading(const QString& anchor) {
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && anchorOf(block.text()) == anchor) {
            // Below the last line first, so that the heading ends at the top.
            moveCursor(QTextCursor::End);
            setTextCursor(QTextCursor(block));
            verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
            return;
        }
    }
}

int FManualText::pictureWidth() const {
    return viewport()->width() - 2 * qRound(document()->documentMargin());
}

QVariant FManualText::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource) {
        return QTextBrowser::loadResource(type, name);
    }
    QImage picture(source().resolved(name).toLocalFile());
    const int width = qRound(pictureWidth() * devicePixelRatioF());
    if (picture.width() > width && width > 0) {
        picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(devicePixelRatioF());
    }
    mPictureWidth = pictureWidth();
    return picture;
}

void FManualText::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    mFit.request();
}

void FManualText::fitPictures() {
    if (mPictureWidth == 0 || mPictureWidth == pictureWidth()) {
        return;
    }
    const QScrollBar* bar = verticalScrollBar();
    const double place = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
    reload();
    verticalScrollBar()->setValue(qRound(place * bar->maximum()));
}
