#pragma once

#include "host/core/FEnum.h"

/** Which occurrence of its anchor positions a result value. */
enum class GenIntAnchorOccurrence { First = 0, Last = 1 };

template <>
FClassData FEnum<GenIntAnchorOccurrence>::mClass;
template <>
const FEnumTable& FEnum<GenIntAnchorOccurrence>::table();
