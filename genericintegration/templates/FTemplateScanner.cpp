#include "genericintegration/templates/FTemplateScanner.h"

#include "genericintegration/templates/FTemplateTags.h"

#include <algorithm>
#include <cstring>

using FTemplateTags::closingMarker;
using FTemplateTags::openingMarker;

namespace {

// The search for a byte is twice as fast as one for a unit, and in few templates half of another unit looks like it.
qsizetype indexOfBracket(QStringView text, qsizetype from) {
    const auto* begin = reinterpret_cast<const char*>(text.utf16());
    const char* end = begin + text.size() * 2;
    const char* byte = begin + from * 2;
    while (byte < end && (byte = static_cast<const char*>(std::memchr(byte, '<', std::size_t(end - byte))))) {
        const qsizetype unit = (byte - begin) / 2;
        if (text[unit] == u'<') {
            return unit;
        }
        byte = begin + (unit + 1) * 2;
    }
    return -1;
}

// No letter outside of ASCII is another case of one of a marker.
bool startsWith(QStringView text, QStringView marker, Qt::CaseSensitivity sensitivity) {
    const auto isOtherCase = [sensitivity](QChar unit, QChar ofMarker) {
        return sensitivity == Qt::CaseInsensitive && ofMarker >= u'a' && unit.unicode() == (ofMarker.unicode() ^ 0x20);
    };
    return text.size() >= marker.size() &&
           std::equal(marker.begin(), marker.end(), text.begin(), [&isOtherCase](QChar ofMarker, QChar unit) {
               return unit == ofMarker || isOtherCase(unit, ofMarker);
           });
}

}  // namespace

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
    for (qsizetype at = indexOfBracket(mText, from); at >= 0; at = indexOfBracket(mText, at + 1)) {
        if (startsWith(mText.mid(at), marker, mSensitivity)) {
            return at;
        }
    }
    return -1;
}
