#pragma once

#include <memory>

/** Counted pointer to what isn't an object of the model; those have FExpr. */
template <class T>
using FSmartPtr = std::shared_ptr<T>;
