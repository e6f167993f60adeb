#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <functional>

class FManaged;
class FNavigator;
class FObjectPage;

/** The classes whose objects have a page of their own. The window learns of those of a plug-in only here. */
namespace FObjectPages {

using Make = std::function<FObjectPage*(FManaged& object, FNavigator& navigator)>;

/** Gives a class and those derived from it a page. A library calls it when it is loaded. */
MERIX_EXPORT void set(const QString& className, const Make& make);
/** Whether there is a page for the object, which may be null. */
MERIX_EXPORT bool has(const FManaged* object);
/** A new page for the object, without a parent; null if its class has none. */
MERIX_EXPORT FObjectPage* make(FManaged& object, FNavigator& navigator);

}  // namespace FObjectPages
