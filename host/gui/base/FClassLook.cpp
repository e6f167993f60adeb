#include "host/gui/base/FClassLook.h"

#include "host/core/FManaged.h"
#include "host/design/FDefinitionBase.h"
#include "host/design/FEntry.h"
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
        {QStringLiteral("FEntry"), {QStringLiteral("configuration"), QString(), QStringLiteral("entry")}},
        {QStringLiteral("FInputFile"), {QStringLiteral("text-x-generic"), QString(), QStringLiteral("input file")}},
        {QStringLiteral("FGeometryExport"), {QStringLiteral("geometry"), QString(), QStringLiteral("geometry export")}},
        {QStringLiteral("FResultsFileName"), {QStringLiteral("results"), QString(), QStringLiteral("result file")}},
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

const FObject* FClassLook::describedBy(const FObject* object) {
    const auto* entry = dynamic_cast<const FEntry*>(object);
    const FObject* value = entry ? entry->getValue().getStored() : nullptr;
    const bool isPlain = value && !dynamic_cast<const FManaged*>(value);
    return isPlain && !wordFor(value).isEmpty() ? value : object;
}

QString FClassLook::helpTopicOf(const FObject& object) {
    const FObject* described = describedBy(&object);
    const auto* entry = dynamic_cast<const FEntry*>(described);
    return entry && entry->getRoot() ? entry->getRoot()->getClass() : described->getClass();
}

void FClassLook::set(const QString& className, const QString& icon, const QString& group, const QString& word) {
    looks().insert(className, {icon, group, word});
}
