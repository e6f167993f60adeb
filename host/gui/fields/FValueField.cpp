#include "host/gui/fields/FValueField.h"

#include "host/core/FNull.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"
#include "host/script/FCmdType.h"

namespace {

FExprBase orEmpty(const FExprBase& expression) {
    return FKeptExpression{expression}.orEmpty();
}

QString textOf(const FExprBase& expression) {
    const auto* text = dynamic_cast<const FString*>(valueObject(expression));
    return text ? text->getValue() : QString();
}

FExprBase fileName(const FObject& value) {
    return dynamic_cast<const FFileReference&>(value).getFileName();
}

bool setFileName(FObject& value, const FExprBase& part) {
    return dynamic_cast<FFileReference&>(value).setFileName(orEmpty(part));
}

FExprBase choice(const QStringList& texts, int number) {
    return FExprBase(new FString(texts.value(number)));
}

const QStringList& fileTypes() {
    static const QStringList texts{QStringLiteral("any"), QStringLiteral("table"), QStringLiteral("image"),
                                   QStringLiteral("text"), QStringLiteral("mesh")};
    return texts;
}

const QStringList& exportKinds() {
    static const QStringList texts{QStringLiteral("objects"), QStringLiteral("feature"), QStringLiteral("import")};
    return texts;
}

std::vector<FValueField> ofInputFile() {
    const auto folder = [](const FObject& value) { return dynamic_cast<const FInputFile&>(value).getSaveDirectory(); };
    const auto setFolder = [](FObject& value, const FExprBase& part) {
        return dynamic_cast<FInputFile&>(value).setSaveDirectory(orEmpty(part));
    };
    return {{QStringLiteral("file"), {}, &fileName, &setFileName}, {QStringLiteral("folder"), {}, folder, setFolder}};
}

std::vector<FValueField> ofResultsFileName() {
    const auto type = [](const FObject& value) {
        return choice(fileTypes(), static_cast<int>(dynamic_cast<const FResultsFileName&>(value).getType()));
    };
    const auto setType = [](FObject& value, const FExprBase& part) {
        const int number = fileTypes().indexOf(textOf(part));
        dynamic_cast<FResultsFileName&>(value).setType(static_cast<ResultsFileType>(number));
        return true;
    };
    return {{QStringLiteral("file"), {}, &fileName, &setFileName},
            {QStringLiteral("kind"), fileTypes(), type, setType}};
}

/** What is exported: the list of objects, or the feature definition or import. */
FExprBase exported(const FObject& value) {
    const auto& geometry = dynamic_cast<const FGeometryExport&>(value);
    if (geometry.getKind() != FGeometryExport::Kind::Geometry) {
        return geometry.getSourceObject();
    }
    auto* list = new FObjectList;
    FExprBase handle(list);
    for (const FExpr<FObject>& object : geometry.getExportedObjects()) {
        list->add(object);
    }
    return handle;
}

bool setExported(FObject& value, const FExprBase& part) {
    auto& geometry = dynamic_cast<FGeometryExport&>(value);
    FObject* object = part.getObject();
    if (geometry.getKind() != FGeometryExport::Kind::Geometry) {
        return geometry.setFeatureDefinition(FExpr<FObject>(orEmpty(part)));
    }
    FObjectList* list = object ? object->castToObjectList() : nullptr;
    auto* single = new FObjectList;
    const FExpr<FObjectList> keep(single);
    if (!list && object && object != FNull::null()) {
        single->add(FExpr<FObject>(object));
    }
    return geometry.setGeometryObjects(list ? FExpr<FObjectList>(list) : keep);
}

std::vector<FValueField> ofGeometryExport() {
    const auto file = [](const FObject& value) {
        return FExprBase(new FString(dynamic_cast<const FGeometryExport&>(value).getFileName()));
    };
    const auto setFile = [](FObject& value, const FExprBase& part) {
        dynamic_cast<FGeometryExport&>(value).setFileName(textOf(part));
        return true;
    };
    const auto kind = [](const FObject& value) {
        return choice(exportKinds(), static_cast<int>(dynamic_cast<const FGeometryExport&>(value).getKind()));
    };
    const auto setKind = [](FObject& value, const FExprBase& part) {
        const int number = exportKinds().indexOf(textOf(part));
        dynamic_cast<FGeometryExport&>(value).setKind(static_cast<FGeometryExport::Kind>(number));
        return true;
    };
    return {{QStringLiteral("file"), {}, file, setFile},
            {QStringLiteral("kind"), exportKinds(), kind, setKind},
            {QStringLiteral("exports"), {}, &exported, &setExported}};
}

}  // namespace

const std::vector<FValueField>& FValueField::of(const FObject* value) {
    static const std::vector<FValueField> none;
    static const std::vector<FValueField> inputFile = ofInputFile();
    static const std::vector<FValueField> resultsFileName = ofResultsFileName();
    static const std::vector<FValueField> geometryExport = ofGeometryExport();
    if (!value || value->isCmd()) {
        return none;
    }
    return value->isTypeOf(FInputFile::null())         ? inputFile
           : value->isTypeOf(FResultsFileName::null()) ? resultsFileName
           : value->isTypeOf(FGeometryExport::null())  ? geometryExport
                                                       : none;
}
