#include "host/lodm/FConfigurationCustom.h"

#include "host/script/FCmd.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"

namespace {

FExpr<FObject> previewText(FConfigurationCustom& configuration, const QString& fileName) {
    const QMap<QString, QString> preview = configuration.getPreview();
    const auto text = preview.constFind(fileName);
    if (text == preview.constEnd()) {
        FCmd::warnNow(configuration.getClass(),
                      QStringLiteral("%1 writes no file \"%2\"%3")
                          .arg(configuration.getName(), fileName, didYouMean(fileName, QStringList(preview.keys()))));
        return {};
    }
    return FExpr<FObject>(new FString(*text));
}

void commands(FCmdTable& table) {
    table
        .attribute<FConfigurationCustom>(
            "setDefinition",
            +[](FConfigurationCustom& configuration, const FExpr<FDefinitionCustom>& definition) {
                configuration.setDefinition(FExpr<FDefinition>(definition));
            },
            +[](const FConfigurationCustom& configuration) {
                return FExpr<FDefinitionCustom>(configuration.getDefinition());
            },
            {"definition"})
        .attrName("Definition")
        .data();
    table.member<FConfigurationCustom>("getPreviewText", &previewText, {"fileName"})
        .returns(FCmdTypeOf<QString>::type())
        .query();
}

}  // namespace

FClassData FConfigurationCustom::mClass("FConfigurationCustom", &FConfigurationCustomBase::mClass, &commands);

FConfigurationCustom::FConfigurationCustom(const QString& name, const FExpr<FDefinitionCustom>& definition)
    : FClass(name) {
    if (definition) {
        setDefinition(FExpr<FDefinition>(definition));
    }
}

QMap<QString, QString> FConfigurationCustom::getPreview() {
    return {};
}
