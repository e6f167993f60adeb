#include "genericintegration/editors/FTemplateOffer.h"

#include "genericintegration/editors/FGenIntCommandFileEntryData.h"
#include "genericintegration/editors/FGenIntCommandFileSyntaxHighlighter.h"
#include "genericintegration/templates/FTemplateTags.h"

#include <QTextBlock>

namespace {

QTextCursor selection(const QTextBlock& block, int from, int to) {
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + from);
    cursor.setPosition(block.position() + to, QTextCursor::KeepAnchor);
    return cursor;
}

QTextCursor cursorAt(QTextCursor cursor, int position) {
    cursor.setPosition(position);
    return cursor;
}

}  // namespace

// A tag whose name has unusual characters is in fewer lists than the others. Numbers are the last ones in each list.
std::optional<FTemplateOffer> FTemplateOffer::at(const QTextCursor& place,
                                                 FGenIntCommandFileSyntaxHighlighter& highlighter) {
    const QTextBlock block = place.block();
    FGenIntCommandFileEntryData* offered = highlighter.dataOf(block);
    const int index = offered ? offered->entryIndexAt(place.positionInBlock()) : -1;
    if (index < 0) {
        return std::nullopt;
    }
    const FTemplateRegions& regions = offered->regions;
    const bool isNumber = regions.isPossibleValue(index);
    const int ofValue = index + regions.names.size() - regions.regionStarts.size();
    const QString name = isNumber ? regions.name(ofValue) : FTemplateTags::nameIn(regions.text(index));
    const int start = regions.regionStart(index);
    const int end = regions.regionEnd(index);
    // What is typed in plain mode isn't analysed.
    const bool isThere = block.text().mid(start, end - start) == regions.text(index);
    const bool isWhole =
        isNumber ? start <= regions.valueStart(ofValue) && regions.valueStart(ofValue) < end : !name.isEmpty();
    if (!isThere || !isWhole) {
        return std::nullopt;
    }
    const QTextCursor whole = selection(block, start, end);
    offered->cursor = isNumber ? selection(block, regions.valueStart(ofValue), end) : whole;
    return FTemplateOffer{isNumber, name, regions.text(index), regions.value(index), whole, offered->cursor};
}

QTextCursor FTemplateOffer::start() const {
    return cursorAt(whole, whole.selectionStart());
}

QTextCursor FTemplateOffer::end() const {
    return cursorAt(whole, whole.selectionEnd());
}
