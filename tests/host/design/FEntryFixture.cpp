#include "tests/host/design/FEntryFixture.h"

#include "host/core/FHistory.h"
#include "host/core/FInitPrototype.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.creator(
        "notingDefinition", +[](const FNewName& name) {
            auto* definition = new FNotingDefinition(name.name);
            definition->registerObject();
            return definition;
        });
}

const FInitPrototypes<FNotingDefinition> types;

}  // namespace

FClassData FNotingDefinition::mClass("FNotingDefinition", &FDefinition::mClass, &commands);

void FNotingDefinition::updateCommandFiles(const QString& oldName, const QString& newName) {
    mRenames.append(oldName + QStringLiteral(" -> ") + newName);
}

FEntryFixture::FEntryFixture() {
    run("notingDefinition def() { .addEntry(\"height\", 40) .addEntry(\"Geometry|span\", 10) }");
    auto* conf = new FConfiguration("conf");
    conf->registerObject();
    conf->setDefinition(FExpr<FDefinition>(&definition()));
    FHistory::instance()->clear();
}

QStringList FEntryFixture::values() const {
    QStringList texts;
    for (const FExpr<FEntryBase>& entry : configuration().getEntryMap()) {
        const FObject* value = static_cast<const FEntry*>(entry.ptr())->getValueObject();
        texts.append(value ? value->toString() : QStringLiteral("nothing"));
    }
    return texts;
}
