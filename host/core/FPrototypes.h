#pragma once

#include "host/core/FClassData.h"
#include "host/core/FExport.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <type_traits>

class FManaged;
class FView;

/**
 * All prototypes by class name. Registrars remember the build functions while libraries load; the prototypes
 * themselves are made at the first look-up, when every static object exists. Those of classes that contain a widget or
 * a pixmap wait until there is a QApplication; in a program without windows, looking them up gives null.
 */
class MERIX_EXPORT FPrototypes {
 public:
    using Build = const FObject* (*)();

    /**
     * Remembers how a class's prototype is built.
     * @param place  where it comes in the order, as given to `rememberPlace`; null for after all remembered before
     */
    static void remember(Build build, bool needsWindows = false, const char* place = nullptr);
    /** What is remembered for a place, before or after this call, is built after all that was remembered before it. */
    static void rememberPlace(const char* place);
    /** Builds what was remembered since the last call, as far as it can be built, and registers its commands. */
    static void buildPending();
    /** Whether the program has windows: only then can widgets be made. */
    static bool hasWindows();

    static void add(const FObject* prototype);
    /** Null if there is none. */
    static const FObject* find(const QString& className);
    /** All class names in alphabetical order. */
    static QStringList getNames();

    /** Makes the prototype of one class unless it exists: trace, flag, object, entry. */
    static const FObject* build(FClassData& data, FFamily family, const std::function<const FObject*()>& make);

    template <class T>
    static constexpr FFamily familyOf() {
        if constexpr (std::is_base_of_v<FView, T>) {
            return FFamily::View;
        } else if constexpr (std::is_base_of_v<FManaged, T>) {
            return FFamily::Managed;
        } else {
            return FFamily::Object;
        }
    }
};
