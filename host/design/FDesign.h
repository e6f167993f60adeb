#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"

/**
 * A design of a study: what has a name and a folder of its own for its runs. The name of the folder for the runs
 * without a design counts as taken.
 */
class MERIX_EXPORT FDesign : public FClass<FDesign, FEntity> {
 public:
    static FClassData mClass;

    explicit FDesign(const QString& name = QString()) : FClass(name) {}
    static FDesign* create(const QString& name);
    FManaged* setName(const QString& name) override;

    /** The name of the folder for the runs without a design. */
    static const QString& reservedName();
    /**
     * Whether what was made for a design, or without one, belongs to the present design. A present design that is gone
     * counts as none; what was made for it belongs to no other.
     */
    static bool isSame(const FExpr<FDesign>& of, const FExpr<FDesign>& present) {
        return present ? of.ptr() == present.ptr() : of.isEmpty();
    }
};
