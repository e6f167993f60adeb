#pragma once

#include "host/core/FExpr.h"

#include <string>
#include <vector>

/** The texts as a list that scripts can use. */
FExprBase textList(const std::vector<std::string>& texts);
