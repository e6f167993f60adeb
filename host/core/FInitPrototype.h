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

/**
 * @param needsWindows  whether the class contains a widget
 * @param place         see `FPrototypes::remember`
 */
class FInitFViewPrototype {
 public:
    explicit FInitFViewPrototype(FPrototypes::Build build, bool needsWindows, const char* place) {
        FPrototypes::remember(build, needsWindows, place);
    }
    virtual ~FInitFViewPrototype() = default;
};

/** A place in the load order for types that another part of a library registers. */
class FPrototypePlace {
 public:
    explicit FPrototypePlace(const char* name) { FPrototypes::rememberPlace(name); }
};

/** Registers the types in the order of the list. */
template <class... Types>
class MERIX_EXPORT FInitPrototypes {
 public:
    FInitPrototypes() { (registerType<Types>(nullptr), ...); }
    /** Registers classes of windows at a place. */
    explicit FInitPrototypes(const char* place) { (registerType<Types>(place), ...); }

 private:
    template <class T>
    static void registerType(const char* place) {
        constexpr FFamily family = FPrototypes::familyOf<T>();
        if constexpr (family == FFamily::View) {
            FInitFViewPrototype registrar(&T::initPrototype, needsWindows<T>(), place);
        } else if constexpr (family == FFamily::Managed) {
            FInitFManagedPrototype registrar(&T::initPrototype);
        } else if constexpr (needsWindows<T>()) {
            FPrototypes::remember(&T::initPrototype, true, place);
        } else {
            FInitFObjectPrototype registrar(&T::initPrototype);
        }
    }

    /** A class that contains a widget or a pixmap says so: `static constexpr bool needsWindows = true;`. */
    template <class T>
    static constexpr bool needsWindows() {
        if constexpr (requires { T::needsWindows; }) {
            return T::needsWindows;
        } else {
            return false;
        }
    }
};
