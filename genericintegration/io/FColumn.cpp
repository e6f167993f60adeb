#include "genericintegration/io/FColumn.h"

#include "genericintegration/io/FNumberPattern.h"
#include "genericintegration/io/FSuspicion.h"
#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"

#include <cmath>

FColumn FColumn::missing(qint64 offset) {
    FColumn column;
    column.range = {offset, offset};
    return column;
}

FColumn FColumn::found(std::string_view text, FByteRange number) {
    FColumn column;
    column.exists = true;
    column.range = number;
    if (const std::optional<double> value = FNumberPattern::toDouble(number.of(text))) {
        column.isNumber = true;
        column.number = *value;
    }
    return column;
}

FColumn FColumn::found(const QString& text, qint64 offset, int units) {
    FColumn column = missing(offset);
    column.exists = true;
    column.text = text;
    column.units = units;
    const double number = text.toDouble(&column.isNumber);
    if (column.isNumber) {
        column.number = number;
    }
    if (!std::isfinite(column.number)) {
        column.flags |= FSuspicion::ofColumn(text);
        column.oddity = text.trimmed();
    }
    return column;
}

void FColumn::fill(FFoundValue& value, const FResultText& in, qint64 line, qint64 lineBegin) const {
    value.line = line + 1;
    value.flags |= flags;
    value.oddity = oddity;
    if (!isNumber) {
        value.flags |= exists ? FFoundFlag::NotANumber : FFoundFlag::ColumnMissing;
    }
    if (exists) {
        const FTextIndex& index = in.index();
        value.number = number;
        value.range = range;
        value.text = text;
        value.column = index.utf16At(range.begin) - index.utf16At(lineBegin) + units + 1;
    }
}
