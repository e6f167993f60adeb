#include "host/design/FPoint.h"

#include "host/script/FCmdTable.h"

void FPoint::commands(FCmdTable& table) {
    table.entityCreator(
        "point", +[](const FNewName& name, double x, double y, double z) { return FPoint::create(name.name, x, y, z); },
        {"x=0", "y=0", "z=0"});
    table.plain<FPoint>("setX", &FPoint::mX, {"x"}).attrName("X").copied();
    table.plain<FPoint>("setY", &FPoint::mY, {"y"}).attrName("Y").copied();
    table.plain<FPoint>("setZ", &FPoint::mZ, {"z"}).attrName("Z").copied();
}

FClassData FPoint::mClass("FPoint", &FEntity::mClass, &FPoint::commands);

FPoint* FPoint::create(const QString& name, double x, double y, double z) {
    auto* point = new FPoint(name);
    point->registerObject();
    point->mX = x;
    point->mY = y;
    point->mZ = z;
    point->recordChange();
    return point;
}
