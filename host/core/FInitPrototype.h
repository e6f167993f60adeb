#pragma once

#include "host/core/FExport.h"
#include "host/core/FPrototypes.h"

/**
 * Registrars: one object a type, made while a library loads, hands the host the function that builds the type's
 * prototype. `FInitPrototype` makes the fitting one.
 */
class MERIX_EXPORT FInitFObjectPrototype {
 public:
    explicit FInitFObjectPrototype(FPrototypes::Build build) { FPrototypes::remember(build); }
    virtual ~FInitFObjectPrototype() = default;
};

class MERIX_EXPORT FInitFManagedPrototype {
 public:
    explicit FInitFManagedPrototype(FPrototypes::Build build) { FPrototypes::remember(build); }
    virtual ~FInitFManagedPrototype() = default;
};

/** Registers the types in the order of the list. */
template <class... Types>
class MERIX_EXPORT FInitPrototypes {
 public:
    FInitPrototypes() { (registerType<Types>(), ...); }

 private:
    template <class T>
    static void registerType() {
        if constexpr (FPrototypes::familyOf<T>() == FFamily::Managed) {
            FInitFManagedPrototype registrar(&T::initPrototype);
        } else {
            FInitFObjectPrototype registrar(&T::initPrototype);
        }
    }
};
