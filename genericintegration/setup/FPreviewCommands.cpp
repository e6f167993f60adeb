#include "genericintegration/setup/FPreviewCommands.h"

#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/run/FTableData.h"
#include "host/run/FValueListing.h"
#include "host/script/FCmdTable.h"

namespace {

QString preview(const FExpr<FGenIntResultsFile>& file) {
    FTableData table(file->getFileName().isEmpty() ? file->getName() : file->getFileName());
    FGenIntReader::instance()->parseFile(file, &table, QString());
    return FValueListing(table).toText();
}

void commands(FCmdTable& table) {
    table.global("preview", &preview, {"template"}).readsFiles();
}

}  // namespace

FClassData FPreviewCommands::mClass("FPreviewCommands", &FObject::mClass, &commands);
