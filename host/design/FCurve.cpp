#include "host/design/FCurve.h"

#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.entityCreator(
        "curve", +[](const FNewName& name, const QString& fileName) { return FCurve::create(name.name, fileName); },
        {"fileName=\"\""});
}

}  // namespace

FClassData FCurve::mClass("FCurve", &FGeometryFile::mClass, &commands);

FCurve* FCurve::create(const QString& name, const QString& fileName) {
    auto* made = new FCurve(name);
    made->enterWith(fileName);
    return made;
}
