#pragma once

#include "host/core/FEnum.h"

/** Size of the items in a software connector. Settings contain these numbers. */
enum class SoftConItemSize { Large = 0, Medium = 2, Small = 4 };

template <>
FClassData FEnum<SoftConItemSize>::mClass;
template <>
const FEnumTable& FEnum<SoftConItemSize>::table();
