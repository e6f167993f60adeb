#include "host/design/FTriangles.h"

#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator(
        "triangles",
        +[](const FNewName& name, const QString& fileName) { return FTriangles::create(name.name, fileName); },
        {"fileName=\"\""});
}

}  // namespace

FClassData FTriangles::mClass("FTriangles", &FGeometryFile::mClass, &commands);

FTriangles* FTriangles::create(const QString& name, const QString& fileName) {
    auto* made = new FTriangles(name);
    made->enterWith(fileName);
    return made;
}
