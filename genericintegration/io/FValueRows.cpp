#include "genericintegration/io/FValueRows.h"

#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/templates/FGenIntResultsFileValue.h"

namespace {

bool isNumber(const FGenIntResultsFileValue& value) {
    return FTemplateValues::typeOf(value)->isTypeOf(FDouble::null());
}

/** The class of the value's type; followed by the text if the type isn't a number. */
QString tooltip(const FGenIntResultsFileValue& value, const QString& text) {
    const QString type = FTemplateValues::typeOf(value)->getClass();
    return isNumber(value) ? type : type + QLatin1Char('|') + text;
}

}  // namespace

FValueRows::FValueRows(int count) {
    mHeaders.reserve(count);
    mTooltips.reserve(count);
    mRows.reserve(count);
    mOrigins.reserve(count);
}

void FValueRows::append(const FGenIntResultsFileValue& value, int number, const FFoundValue& found,
                        const QString& text) {
    mHeaders.append(value.mName);
    mTooltips.append(tooltip(value, text));
    mRows.append(QVector<double>{found.number});
    mOrigins.append(found);
    FNumberOrigin& origin = mOrigins.last();
    origin.text = text;
    origin.valueNumber = number;
    origin.markLine = value.mLine;
    origin.anchor = value.mCalcAverage ? QString() : value.mAnchor;
    origin.isText = !isNumber(value);
    // A text that was found is what such a value is for.
    if (origin.isText && !text.isEmpty()) {
        origin.flags &= ~(suspiciousFlags | FNumberFlag::NotANumber);
    }
}

void FValueRows::fill(FTableData& table) const {
    table.setData(mRows);
    table.setAllVerticalHeaders(mHeaders);
    table.setAllVerticalHeadersTooltips(mTooltips);
    table.setOrigins(mOrigins);
}
