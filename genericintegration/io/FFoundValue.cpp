#include "genericintegration/io/FFoundValue.h"

#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"

QString FFoundValue::textIn(const FResultText& searched) const {
    return range.size() > 0 ? FUtf8::decode(range.of(searched.text())) : text;
}
