#include "host/gui/base/FClassLook.h"

#include "host/core/FObject.h"
#include "host/gui/base/FIcons.h"

#include <QHash>

namespace {

struct Look {
    QString icon;
    QString group;
    QString word;
};

QHash<QString, Look>& looks() {
    static QHash<QString, Look> all{
        {QStringLiteral("FView"), {QStringLiteral("connector"), QString(), QStringLiteral("software connector")}},
        {QStringLiteral("FExternComputation"),
         {QStringLiteral("computation"), QString(), QStringLiteral("computation")}},
        {QStringLiteral("FDefinition"),
         {QStringLiteral("definition"), QStringLiteral("Definitions"), QStringLiteral("definition")}},
        {QStringLiteral("FConfiguration"),
         {QStringLiteral("configuration"), QStringLiteral("Configurations"), QStringLiteral("configuration")}},
        {QStringLiteral("FResults"), {QStringLiteral("results"), QStringLiteral("Results"), QStringLiteral("results")}},
        {QStringLiteral("FParameter"),
         {QStringLiteral("parameter"), QStringLiteral("Parameters"), QStringLiteral("parameter")}},
        {QStringLiteral("FDesign"), {QStringLiteral("design"), QStringLiteral("Designs"), QStringLiteral("design")}},
        {QStringLiteral("FEntity"),
         {QStringLiteral("geometry"), QStringLiteral("Geometry"), QStringLiteral("geometry")}},
        {QStringLiteral("FManaged"), {QStringLiteral("object"), QStringLiteral("Others"), QStringLiteral("object")}},
    };
    return all;
}

const Look& lookOf(const FObject* object) {
    static const Look none;
    const auto& all = looks();
    for (const FObject* type = object ? object->getPrototype() : nullptr; type; type = type->getSuperClass()) {
        const auto found = all.find(type->getClass());
        if (found != all.end()) {
            return *found;
        }
    }
    return none;
}

}  // namespace

QIcon FClassLook::iconOf(const FObject* object) {
    static QHash<QString, QIcon> loaded;
    const QString& name = lookOf(object).icon;
    auto found = loaded.find(name);
    return found == loaded.end() ? *loaded.insert(name, FIcons::get(name)) : *found;
}

QString FClassLook::groupOf(const FObject* object) {
    return lookOf(object).group;
}

QString FClassLook::wordFor(const FObject* object) {
    return lookOf(object).word;
}

void FClassLook::set(const QString& className, const QString& icon, const QString& group, const QString& word) {
    looks().insert(className, {icon, group, word});
}
