#pragma once

#include "host/core/FEnum.h"

/** Which part of an object's or command's documentation a text is. */
enum class FDocuArea { Name = 0, Description = 1, Example = 2, Result = 3, Help = 5 };

template <>
MERIX_EXPORT FClassData FEnum<FDocuArea>::mClass;
template <>
MERIX_EXPORT const FEnumTable& FEnum<FDocuArea>::table();
