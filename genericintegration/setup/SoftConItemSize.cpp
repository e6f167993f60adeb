#include "genericintegration/setup/SoftConItemSize.h"

template <>
FClassData FEnum<SoftConItemSize>::mClass("FEnum<SoftConItemSize>", &FEnumBase::mClass);

template <>
const FEnumTable& FEnum<SoftConItemSize>::table() {
    static const FEnumTable texts(
        static_cast<unsigned int>(SoftConItemSize::Medium),
        {{0, QStringLiteral("Large")}, {2, QStringLiteral("Medium")}, {4, QStringLiteral("Small")}});
    return texts;
}

namespace {

// Filled while the plug-in is loaded, so that scripts know the words from their first line on.
[[maybe_unused]] const FEnumTable& filledAtLoad = FEnum<SoftConItemSize>::table();

}  // namespace
