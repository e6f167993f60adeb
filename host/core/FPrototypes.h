#pragma once

#include "host/core/FClassData.h"
#include "host/core/FExport.h"

#include <QString>

#include <functional>
#include <type_traits>

class FManaged;

/**
 * All prototypes by class name. Registrars remember the build functions while libraries load; the prototypes
 * themselves are made at the first look-up, when every static object exists.
 */
class MERIX_EXPORT FPrototypes {
 public:
    using Build = const FObject* (*)();

    /** Remembers how a class's prototype is built. */
    static void remember(Build build);
    /** Builds what was remembered since the last call and registers its commands. */
    static void buildPending();

    static void add(const FObject* prototype);
    /** Null if there is none. */
    static const FObject* find(const QString& className);

    /** Makes the prototype of one class unless it exists: trace, flag, object, entry. */
    static const FObject* build(FClassData& data, FFamily family, const std::function<const FObject*()>& make);

    template <class T>
    static constexpr FFamily familyOf() {
        if constexpr (std::is_base_of_v<FManaged, T>) {
            return FFamily::Managed;
        } else {
            return FFamily::Object;
        }
    }
};
