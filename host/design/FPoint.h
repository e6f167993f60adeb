#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"

/** A point in space. */
class MERIX_EXPORT FPoint : public FClass<FPoint, FEntity> {
 public:
    static FClassData mClass;

    static FPoint* create(const QString& name, double x, double y, double z);

    double getX() const { return mX; }
    double getY() const { return mY; }
    double getZ() const { return mZ; }
    bool isDrawable() const override { return true; }

 protected:
    explicit FPoint(const QString& name = QString()) : FClass(name) {}

 private:
    friend class FClass<FPoint, FEntity>;

    static void commands(FCmdTable& table);

    double mX = 0;
    double mY = 0;
    double mZ = 0;
};
