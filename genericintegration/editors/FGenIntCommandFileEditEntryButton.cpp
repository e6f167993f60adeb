#include "genericintegration/editors/FGenIntCommandFileEditEntryButton.h"

#include "genericintegration/editors/FTemplateColors.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/gui/text/FTextColor.h"

#include <QPainter>

void FGenIntCommandFileEditEntryButton::setEntryName(const QString& name) {
    mEntryName = name;
    setAccessibleName(QStringLiteral("Change the tag of ") + name);
    update();
}

void FGenIntCommandFileEditEntryButton::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    constexpr int gap = 2;
    QPainter painter(this);
    int x = iconSize().width() + gap;
    const auto draw = [&](const QString& text, const QColor& color, QFont::Weight weight) {
        QFont styled = font();
        styled.setWeight(weight);
        painter.setFont(styled);
        painter.setPen(FTextColor::foreground(color));
        painter.drawText(QRect(x, 0, width() - x, height()), Qt::AlignLeft | Qt::AlignVCenter, text);
        x += QFontMetrics(styled).horizontalAdvance(text);
    };
    const FTemplateColors& colors = FTemplateColors::instance();
    draw(FTemplateTags::openingMarker.toString(), colors.buttonTagColor, QFont::Normal);
    draw(mEntryName, colors.buttonEntryColor, QFont::Bold);
    draw(FTemplateTags::closingMarker.toString(), colors.buttonTagColor, QFont::Normal);
}
