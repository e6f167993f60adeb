#include "host/lodm/FConfigurationCustom.h"

#include "host/core/FFile.h"
#include "host/core/FIO.h"
#include "host/core/FIni.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FViewCtrl.h"
#include "host/lodm/FLodmDefinitionParser.h"
#include "host/lodm/FLodmPath.h"
#include "host/run/FPathManager.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdManager.h"
#include "host/script/FCmdTable.h"

#include <QCoreApplication>
#include <QFile>

namespace {

const QString& importPathKey() {
    static const QString key = QStringLiteral("LODM/import/path");
    return key;
}

QString askForFile() {
    const QVariant last = FIni().value(importPathKey(), QVariant());
    QString start = last.isValid() ? last.toString() : FPathManager::instance()->getSamplesDir();
    return FViewCtrl::getOpenFileName(QStringLiteral("Open LODM File"), start,
                                      QStringLiteral("LODM Files (*.lodm *.xml)"));
}

void tellUnreadable(const QString& file, const QString& fault) {
    const QString text =
        QCoreApplication::translate("FConfigurationCustom", "Cannot read file %1:\n%2.").arg(file, fault);
    FIO::information(nullptr, FMerixCtrl::getApplicationTitle(), text, QString(), QString(), QString(), 0, -1);
}

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

void FConfigurationCustom::preview() {
    FUserInterface::instance()->showTexts(QStringLiteral("Preview of %1").arg(getName()), getPreview());
}

FConfigurationCustom* FConfigurationCustom::createSetUp(const FExpr<FDefinitionCustom>& definition) {
    setDefinition(FExpr<FDefinition>(definition));
    initEntireStructure(true);
    return this;
}

QObject* FConfigurationCustom::getObjectEditor() const {
    return FUserInterface::instance()->getObjectEditor(FExprBase(this));
}

FDefinitionCustom* FConfigurationCustom::parseFile(QFile* file, const FExpr<FDefinitionCustom>& definition) const {
    FLodmDefinitionParser parser(definition);
    parser.read(file);
    return parser.getDefinition().ptr();
}

FDefinitionCustom* FConfigurationCustom::importLodmDefinition(const FExpr<FDefinitionCustom>& definition,
                                                              const QString& fileName) const {
    const QString name = fileName.isEmpty() ? askForFile() : FFile::resolveEnv(fileName);
    if (name.isEmpty()) {
        return nullptr;
    }
    if (!FMerixCtrl::instance()->isReadOnly()) {
        FIni().setValue(importPathKey(), name);
    }
    const QString path = lodmPath(name);
    QFile file(path);
    const QString fault = FFile::openOrdinary(file, QIODevice::ReadOnly | QIODevice::Text);
    if (!fault.isEmpty()) {
        tellUnreadable(path, fault);
        return nullptr;
    }
    return parseFile(&file, definition);
}
