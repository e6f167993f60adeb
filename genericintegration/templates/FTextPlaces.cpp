#include "genericintegration/templates/FTextPlaces.h"

#include <algorithm>
#include <limits>

namespace {

// A counter as wide as the units lets the compiler compare and add whole registers: three times the speed of
// std::count.
quint16 countLineEndsInBlock(const char16_t* units, qsizetype size) {
    quint16 count = 0;
    for (qsizetype unit = 0; unit < size; ++unit) {
        count = quint16(count + (units[unit] == u'\n' ? 1 : 0));
    }
    return count;
}

qsizetype countLineEnds(QStringView text) {
    constexpr qsizetype block = std::numeric_limits<quint16>::max();
    qsizetype count = 0;
    for (qsizetype start = 0; start < text.size(); start += block) {
        count += countLineEndsInBlock(text.utf16() + start, std::min(block, text.size() - start));
    }
    return count;
}

}  // namespace

FTextPlace FTextPlaces::at(qsizetype position) {
    if (position < mPosition) {
        *this = FTextPlaces(mText);
    }
    const QStringView passed = mText.mid(mPosition, position - mPosition);
    if (const qsizetype lineEnds = countLineEnds(passed); lineEnds > 0) {
        mLine += lineEnds;
        mLineStart = mPosition + passed.lastIndexOf(u'\n') + 1;
    }
    mPosition = position;
    return {mLine, position - mLineStart + 1};
}
