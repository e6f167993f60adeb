#include "genericintegration/io/FFoundValue.h"

#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FUtf8.h"

QString FFoundValue::textIn(const FResultText& text) const {
    return range.size() > 0 ? FUtf8::decode(range.of(text.text())) : separated;
}
