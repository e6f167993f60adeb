#include "genericintegration/templates/GenIntAnchorOccurrence.h"

template <>
FClassData FEnum<GenIntAnchorOccurrence>::mClass("FEnum<GenIntAnchorOccurrence>", &FEnumBase::mClass);

template <>
const FEnumTable& FEnum<GenIntAnchorOccurrence>::table() {
    static const FEnumTable texts(static_cast<unsigned int>(GenIntAnchorOccurrence::Last),
                                  {{0, QStringLiteral("First")}, {1, QStringLiteral("Last")}});
    return texts;
}

namespace {

// Filled while the plug-in is loaded, so that scripts know the words from their first line on.
[[maybe_unused]] const FEnumTable& filledAtLoad = FEnum<GenIntAnchorOccurrence>::table();

}  // namespace
