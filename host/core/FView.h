#pragma once

#include "host/core/FManaged.h"

/** A view in a window, as an object of the model. The widget of it is the business of derived classes. */
class MERIX_EXPORT FView : public FClass<FView, FManaged> {
 public:
    static FClassData mClass;
    static bool mInitPrototype;  //!< true while the prototype of a view is built

    explicit FView(const QString& name = QString()) : FClass(name) {}
};
