#pragma once

#include "host/core/FExport.h"

class FInteger;
class FObject;
class FUnsigned;
template <class E>
class FEnum;

/**
 * What a handle on class T makes of values that aren't of class T. In general nothing. A handle on a whole number or an
 * enumeration takes what can be read as one, and keeps expressions, which are decided when they have a value.
 */
template <class T>
struct FConversion {
    static constexpr bool exists = false;
};

template <>
struct FConversion<FInteger> {
    static constexpr bool exists = true;
    /** A new object for a whole number of at most 53 bits, given as a number or a text; null for anything else. */
    MERIX_EXPORT static FObject* from(const FObject& value);
};

template <>
struct FConversion<FUnsigned> {
    static constexpr bool exists = true;
    /** The same for a whole number from 0 to 4294967295. */
    MERIX_EXPORT static FObject* from(const FObject& value);
};

template <class E>
struct FConversion<FEnum<E>> {
    static constexpr bool exists = true;
    /** A new object for a text of the enumeration, in any case, or for one of its numbers; null for anything else. */
    static FObject* from(const FObject& value);
};
