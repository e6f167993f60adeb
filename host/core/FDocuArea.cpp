#include "host/core/FDocuArea.h"

template <>
FClassData FEnum<FDocuArea>::mClass("FEnum<FDocuArea>", &FEnumBase::mClass);

template <>
const FEnumTable& FEnum<FDocuArea>::table() {
    static const FEnumTable texts(static_cast<unsigned int>(FDocuArea::Description),
                                  {{0, QStringLiteral("DocuName")},
                                   {1, QStringLiteral("DocuDescription")},
                                   {2, QStringLiteral("DocuExample")},
                                   {3, QStringLiteral("DocuResult")},
                                   {5, QStringLiteral("DocuHelp")}});
    return texts;
}

namespace {

// Filled while the library is loaded, so that scripts know the words from their first line on.
[[maybe_unused]] const FEnumTable& filledAtLoad = FEnum<FDocuArea>::table();

}  // namespace
