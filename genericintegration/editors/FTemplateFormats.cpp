#include "genericintegration/editors/FTemplateFormats.h"

#include "genericintegration/editors/FTemplateColors.h"
#include "host/gui/text/FCmdLineSyntaxHighlighter.h"
#include "host/gui/text/FTextColor.h"

namespace {

using Kind = FTemplateSpan::Kind;

QTextCharFormat format(const QColor& foreground, const QColor& background) {
    QTextCharFormat made;
    made.setForeground(FTextColor::foreground(foreground));
    made.setBackground(FTextColor::background(background));
    return made;
}

QTextCharFormat format(const QColor& foreground, const QColor& background, QFont::Weight weight) {
    QTextCharFormat made = format(foreground, background);
    made.setFontWeight(weight);
    return made;
}

}  // namespace

FTemplateFormats::FTemplateFormats() {
    const FTemplateColors& colors = FTemplateColors::instance();
    const QColor error = FCmdLineSyntaxHighlighter::sErrorUnderlineColor;
    const auto at = [this](Kind kind) -> QTextCharFormat& { return mFormats[static_cast<std::size_t>(kind)]; };
    at(Kind::Tag) = format(colors.tagForeground, colors.tagBackground);
    at(Kind::TagError) = format(colors.tagErrorForeground, colors.tagErrorBackground);
    at(Kind::Known) = format(colors.valueForeground, colors.valueBackground, QFont::Bold);
    at(Kind::Unknown) = format(colors.valueErrorForeground, colors.valueErrorBackground, QFont::Bold);
    at(Kind::ErrorText) = format(error, colors.tagBackground);
    at(Kind::Possible) = format(colors.possibleValueForeground, colors.possibleValueBackground, QFont::Normal);
    at(Kind::Match) =
        format(FCmdLineSyntaxHighlighter::sTextColor, FCmdLineSyntaxHighlighter::sCustomColor, QFont::Normal);
    mTextAfterTagError = format(error, colors.tagErrorBackground);
}

QVector<QTextLayout::FormatRange> FTemplateFormats::of(const std::vector<FTemplateSpan>& spans, int length) const {
    std::vector<const QTextCharFormat*> painted(static_cast<std::size_t>(length), nullptr);
    Kind before = Kind::Tag;
    for (const FTemplateSpan& span : spans) {
        const bool isAfterError = span.kind == Kind::ErrorText && before == Kind::TagError;
        const QTextCharFormat& found =
            isAfterError ? mTextAfterTagError : mFormats[static_cast<std::size_t>(span.kind)];
        std::fill_n(painted.begin() + span.start, span.length, &found);
        before = span.kind;
    }
    QVector<QTextLayout::FormatRange> ranges;
    for (int start = 0; start < length;) {
        const QTextCharFormat* found = painted[static_cast<std::size_t>(start)];
        int end = start + 1;
        while (end < length && painted[static_cast<std::size_t>(end)] == found) {
            ++end;
        }
        if (found) {
            ranges.append({start, end - start, *found});
        }
        start = end;
    }
    return ranges;
}
