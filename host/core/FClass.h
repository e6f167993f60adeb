#pragma once

#include "host/core/FExport.h"
#include "host/core/FObject.h"
#include "host/core/FPrototypes.h"

#include <concepts>
#include <tuple>
#include <type_traits>
#include <utility>

/**
 * The class pattern, once for all classes. A class states its bases here and its name and tables in its `mClass`:
 *
 *     class FThing : public FClass<FThing, FManaged> {
 *      public:
 *         static FClassData mClass;
 *
 * and in the source file
 *
 *     FClassData FThing::mClass("FThing", &FManaged::mClass, &FThing::commands);
 *
 * A class that is a QObject as well names QObject, or a class derived from it, first. The arguments of the constructor
 * go to the last base; where the first one is a parent, it goes to the QObject. The class needs a constructor without
 * arguments, which makes the prototype.
 */
template <class Self, class... Bases>
class MERIX_EXPORT FClass : public Bases... {
    using First = std::tuple_element_t<0, std::tuple<Bases...>>;
    using Last = std::tuple_element_t<sizeof...(Bases) - 1, std::tuple<Bases...>>;

    /** A pointer that the first of several bases takes: the parent of a QObject. */
    template <class P>
    static constexpr bool isParent = sizeof...(Bases) > 1 && std::is_pointer_v<P>&& std::is_constructible_v<First, P>;

    /** Whether arguments are neither those of the copy constructor nor led by a parent. */
    template <class... Args>
    static constexpr bool isForLast() {
        if constexpr (sizeof...(Args) == 0) {
            return true;
        } else {
            using Front = std::remove_cvref_t<std::tuple_element_t<0, std::tuple<Args...>>>;
            return !isParent<Front> && !(sizeof...(Args) == 1 && std::derived_from<Front, FClass>);
        }
    }

 public:
    template <class... Args>
    requires(isForLast<Args...>()) explicit FClass(Args&&... args) : Last(std::forward<Args>(args)...) {}
    template <class Parent, class... Args>
    requires(isParent<Parent>) explicit FClass(Parent parent, Args&&... args)
        : First(parent), Last(std::forward<Args>(args)...) {}

    const FClassData& getClassData() const override { return Self::mClass; }
    /** The null object of the class: its prototype. */
    static const Self* null() { return static_cast<const Self*>(Self::mClass.mpNull); }
    /** Builds the prototype at the first call and returns it. */
    static const FObject* initPrototype() {
        return FPrototypes::build(Self::mClass, FPrototypes::familyOf<Self>(),
                                  []() -> const FObject* { return new Self(); });
    }
};
