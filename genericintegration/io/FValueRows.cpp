#include "genericintegration/io/FValueRows.h"

#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/templates/FGenIntResultsFileValue.h"

#include <utility>

namespace {

QStringList oddities(FFoundFlags flags) {
    static const std::pair<FFoundFlag, const char*> words[] = {
        {FFoundFlag::AnchorMissing, "anchor not found, counted from the top or the bottom of the file"},
        {FFoundFlag::LineBeyondEnd, "line beyond the end"},
        {FFoundFlag::ColumnMissing, "column missing"},
        {FFoundFlag::NotANumber, "not a number"},
        {FFoundFlag::FewerRows, "fewer rows than wished"},
        {FFoundFlag::CutExponent, "number cut before its exponent"},
        {FFoundFlag::Stars, "asterisks in place of a number"},
        {FFoundFlag::NanOrInf, "NaN or Inf in the file"},
        {FFoundFlag::DecimalComma, "decimal comma"},
        {FFoundFlag::TouchesText, "number touches a letter or another number"}};
    QStringList texts;
    if (!flags) {
        return texts;
    }
    for (const auto& [flag, text] : words) {
        if (flags.testFlag(flag)) {
            texts.append(QString::fromLatin1(text));
        }
    }
    return texts;
}

/** The class of the value's type; followed by the text if the type isn't a number. */
QString tooltip(const FGenIntResultsFileValue& value, const QString& text) {
    const FObject* type = FTemplateValues::typeOf(value);
    return type->isTypeOf(FDouble::null()) ? type->getClass() : type->getClass() + QLatin1Char('|') + text;
}

}  // namespace

FValueRows::FValueRows(int count) {
    mHeaders.reserve(count);
    mTooltips.reserve(count);
    mRows.reserve(count);
    mOrigins.reserve(count);
}

void FValueRows::append(const FGenIntResultsFileValue& value, const FFoundValue& found, const QString& text) {
    mHeaders.append(value.mName);
    mTooltips.append(tooltip(value, text));
    mRows.append(QVector<double>{found.number});
    mOrigins.append({text, found.line, found.column, found.length, oddities(found.flags)});
}

void FValueRows::fill(FTableData& table) const {
    table.setData(mRows);
    table.setAllVerticalHeaders(mHeaders);
    table.setAllVerticalHeadersTooltips(mTooltips);
    table.setOrigins(mOrigins);
}
