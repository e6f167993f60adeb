#include "genericintegration/setup/FConfigurationGenInt.h"

#include "genericintegration/io/FGenIntWriter.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntDefinitionParser.h"
#include "host/script/FCmdTable.h"

#include <QFile>

namespace {

FDefinitionGenInt* importGenIntDefinition(const QString& fileName) {
    return FConfigurationGenInt::null()->importGenIntDefinition(fileName);
}

FExpr<FDefinitionGenInt> definitionOf(const FConfigurationGenInt& configuration) {
    return FExpr<FDefinitionGenInt>(configuration.getDefinition());
}

void setDefinition(FConfigurationGenInt& configuration, const FExpr<FDefinitionGenInt>& definition) {
    configuration.setDefinition(FExpr<FDefinition>(definition));
}

void commands(FCmdTable& table) {
    using F = FConfigurationGenInt;
    table.entityCreator(
        "genericIntegrationConfiguration",
        +[](const FNewName& name, bool initialize) { return F::create(name.scope, name.name, initialize, nullptr); },
        {"initializeConfiguration=false"});
    table.attribute<F>("setDefinition", &setDefinition, &definitionOf, {"definition"})
        .attrName("Definition")
        .attrAsExpr(false)
        .needsGuiReinit(true)
        .userLevel(1)
        .data();
    table.global("importGenIntDefinition", &importGenIntDefinition, {"fileName=\"\""})
        .method("importGenIntDefinition")
        .onPrototype();
    table.hideInherited("FAttribCmdFConfigurationCustomsetDefinitionFDefinitionCustom");
}

}  // namespace

FClassData FConfigurationGenInt::mClass("FConfigurationGenInt", &FConfigurationCustom::mClass, &commands);

FConfigurationGenInt::FConfigurationGenInt(const QString& name, const FDefinitionGenInt* definition)
    : FClass(name, FExpr<FDefinitionCustom>(definition)) {}

FConfigurationGenInt* FConfigurationGenInt::create(const FExpr<FScope>& scope, const QString& name, bool initialize,
                                                   const FDefinitionGenInt* definition) {
    Q_UNUSED(scope)
    auto* configuration = new FConfigurationGenInt(name, definition);
    configuration->registerObject();
    configuration->init();
    if (initialize) {
        configuration->initEntireStructure(false);
    }
    return configuration;
}

FObject* FConfigurationGenInt::clone() const {
    auto* copy = new FConfigurationGenInt(getName());
    copy->init(this);
    return copy;
}

void FConfigurationGenInt::init(const FConfigurationGenInt* other) {
    FConfigurationCustom::init(other);
}

QMap<QString, QString> FConfigurationGenInt::getPreview() {
    QMap<QString, QString> texts;
    FGenIntWriter::instance()->previewCommandFiles(FExpr<FConfiguration>(this), texts);
    return texts;
}

void FConfigurationGenInt::reassignEntryDefs() {
    if (const FDefinition* definition = getDefinition().ptr()) {
        FEntry::reassign(getEntries(), definition->getEntries());
    }
}

FDefinitionCustom* FConfigurationGenInt::parseFile(QFile* file, const FExpr<FDefinitionCustom>& definition) const {
    FGenIntDefinitionParser parser(definition);
    parser.read(file);
    return parser.getDefinition().ptr();
}

FDefinitionGenInt* FConfigurationGenInt::importGenIntDefinition(const QString& fileName) const {
    return dynamic_cast<FDefinitionGenInt*>(
        importLodmDefinition(FExpr<FDefinitionCustom>(FDefinitionGenInt::null()), fileName));
}
