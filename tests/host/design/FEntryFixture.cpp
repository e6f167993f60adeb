#include "tests/host/design/FEntryFixture.h"

#include "host/core/FHistory.h"
#include "host/core/FInitPrototype.h"
#include "host/core/FObjectManager.h"
#include "host/script/FCmdTable.h"

namespace {

template <class T>
T* make(const FNewName& name) {
    auto* object = new T(name.name);
    object->registerObject();
    return object;
}

void definitionCommands(FCmdTable& table) {
    table.creator("notingDefinition", &make<FNotingDefinition>);
}

void configurationCommands(FCmdTable& table) {
    table.creator("notingConfiguration", &make<FNotingConfiguration>);
    table
        .attribute<FConfiguration>("setDefinition", &FConfiguration::setDefinition, &FConfiguration::getDefinition,
                                   {"definition"})
        .data();
}

const FInitPrototypes<FNotingDefinition, FNotingConfiguration> types;

}  // namespace

FClassData FNotingDefinition::mClass("FNotingDefinition", &FDefinition::mClass, &definitionCommands);
FClassData FNotingConfiguration::mClass("FNotingConfiguration", &FConfiguration::mClass, &configurationCommands);

void FNotingDefinition::updateCommandFiles(const QString& oldName, const QString& newName) {
    mRenames.append(oldName + QStringLiteral(" -> ") + newName);
}

FEntryFixture::FEntryFixture() {
    run("notingDefinition def() { .addEntry(\"height\", 40) .addEntry(\"Geometry|span\", 10) }\n"
        "notingConfiguration conf() { .setDefinition(def) }");
    FHistory::instance()->clear();
}

FNotingDefinition& FEntryFixture::definition() const {
    return *object<FNotingDefinition>("def");
}

FNotingConfiguration& FEntryFixture::configuration() const {
    return *object<FNotingConfiguration>("conf");
}

QStringList FEntryFixture::values() const {
    QStringList texts;
    for (const FExpr<FEntryBase>& entry : configuration().getEntryMap()) {
        const FObject* value = static_cast<const FEntry*>(entry.ptr())->getValueObject();
        texts.append(value ? value->toString() : QStringLiteral("nothing"));
    }
    return texts;
}
