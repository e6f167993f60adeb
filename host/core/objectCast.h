#pragma once

#include "host/core/FObject.h"

#include <concepts>
#include <type_traits>

/** A class that has class data of its own, by which its objects are recognised. */
template <class T>
concept StatesItsClass = std::derived_from<T, FObject> && std::same_as<decltype(T::null()), const T*>;

/**
 * The object as one of class T, or null if it isn't one: a `dynamic_cast` for handles, which are looked at all the
 * time. Classes of the class pattern are recognised by their class data, in a fraction of the time; any other, as an
 * interface, is left to the language.
 */
template <class T>
T* objectCast(FObject* object) {
    if constexpr (std::same_as<T, FObject>) {
        return object;
    } else if constexpr (StatesItsClass<T>) {
        return object && T::mClass.isSuperClassOf(object->getClassData()) ? static_cast<T*>(object) : nullptr;
    } else {
        return dynamic_cast<T*>(object);
    }
}

template <class T>
const T* objectCast(const FObject* object) {
    return objectCast<T>(const_cast<FObject*>(object));
}
