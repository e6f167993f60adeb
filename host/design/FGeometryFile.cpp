#include "host/design/FGeometryFile.h"

#include "host/script/FCmdTable.h"

void FGeometryFile::fileCommands(FCmdTable& table) {
    table.plain<FGeometryFile>("setFileName", &FGeometryFile::mFileName, {"fileName"}).attrName("File Name").copied();
}

FClassData FGeometryFile::mClass("FGeometryFile", &FEntity::mClass, &FGeometryFile::fileCommands);

void FGeometryFile::enterWith(const QString& fileName) {
    registerObject();
    mFileName = fileName;
    recordChange();
}
