#include "genericintegration/setup/FReplacedText.h"

#include "host/core/FNumber.h"

bool FReplacedText::standsFor(const QString& text, const FObject* standard) {
    const auto* number = dynamic_cast<const FDouble*>(standard);
    return number && text.toDouble() == number->toDouble();  // 0 for a word
}
