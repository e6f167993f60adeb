#include "genericintegration/io/FColumn.h"

#include <cmath>

#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FSuspicion.h"

FColumn FColumn::missing(qint64 offset, FFoundFlags flags) {
    FColumn column;
    column.offset = offset;
    column.flags = flags;
    return column;
}

FColumn FColumn::found(const QString& text, qint64 offset, int units, FFoundFlags flags) {
    FColumn column = missing(offset, flags);
    column.exists = true;
    column.text = text;
    column.units = units;
    const double number = text.toDouble(&column.isNumber);
    if (column.isNumber)
        column.number = number;
    if (!std::isfinite(column.number))
        column.flags |= FSuspicion::ofColumn(text);
    return column;
}

FFoundValue FColumn::value(const FResultText& in) const {
    const FTextIndex& index = in.index();
    FFoundValue value;
    value.line = index.lineAt(offset) + 1;
    value.flags = flags;
    value.flags.setFlag(FFoundFlag::ColumnMissing, !exists);
    value.flags.setFlag(FFoundFlag::NotANumber, exists && !isNumber);
    if (exists) {
        value.number = number;
        value.text = text;
        value.column = index.utf16At(offset) - index.utf16At(index.lineBegin(offset)) + units + 1;
        value.length = text.size();
    }
    return value;
}
