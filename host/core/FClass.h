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
 * A class that is a QObject as well names QObject first. The arguments of the constructor go to the last base. The
 * class needs a constructor without arguments, which makes the prototype.
 */
template <class Self, class... Bases>
class MERIX_EXPORT FClass : public Bases... {
    using Last = std::tuple_element_t<sizeof...(Bases) - 1, std::tuple<Bases...>>;

 public:
    template <class... Args>
    requires(!(sizeof...(Args) == 1 &&
               (std::derived_from<std::remove_cvref_t<Args>, FClass> && ...))) explicit FClass(Args&&... args)
        : Last(std::forward<Args>(args)...) {}

    const FClassData& getClassData() const override { return Self::mClass; }
    /** The null object of the class: its prototype. */
    static const Self* null() { return static_cast<const Self*>(Self::mClass.mpNull); }
    /** Builds the prototype at the first call and returns it. */
    static const FObject* initPrototype() {
        return FPrototypes::build(Self::mClass, FPrototypes::familyOf<Self>(),
                                  []() -> const FObject* { return new Self(); });
    }
};
