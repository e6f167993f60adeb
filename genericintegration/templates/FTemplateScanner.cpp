#include "genericintegration/templates/FTemplateScanner.h"

#include "genericintegration/templates/FTemplateTags.h"

using FTemplateTags::closingMarker;
using FTemplateTags::openingMarker;

FTemplateScanner::FTemplateScanner(QStringView text, Qt::CaseSensitivity sensitivity)
    : mText(text), mSensitivity(sensitivity) {}

std::optional<FTemplateTag> FTemplateScanner::next() {
    const qsizetype opening = mUnterminated ? -1 : find(openingMarker, mPosition);
    if (opening < 0) {
        mPosition = mText.size();
        return std::nullopt;
    }
    const qsizetype start = opening + openingMarker.size();
    const qsizetype closing = find(closingMarker, start);
    if (closing < 0) {
        mUnterminated = opening;
        return std::nullopt;
    }
    mPosition = closing + closingMarker.size();
    return FTemplateTag{opening, mPosition - opening, mText.mid(start, closing - start)};
}

// Looking for the bracket alone is several times faster than a search that folds every character, and finds the same:
// the bracket has no other case.
qsizetype FTemplateScanner::find(QStringView marker, qsizetype from) const {
    for (qsizetype at = mText.indexOf(u'<', from); at >= 0; at = mText.indexOf(u'<', at + 1)) {
        if (mText.mid(at).startsWith(marker, mSensitivity)) {
            return at;
        }
    }
    return -1;
}
