#include "genericintegration/templates/FGenIntCommandFile.h"

#include "genericintegration/templates/FTemplateTags.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table.creator(
        "genericIntegrationCommandFile", +[](const FNewName& name) { return FGenIntCommandFile::create(name.name); });
}

}  // namespace

FClassData FGenIntCommandFile::mClass("FGenIntCommandFile", &FGenIntFile::mClass, &commands);

FGenIntCommandFile* FGenIntCommandFile::create(const QString& name) {
    auto* file = new FGenIntCommandFile(name);
    file->registerObject();
    return file;
}

FObject* FGenIntCommandFile::clone() const {
    FGenIntCommandFile* copy = create(QString());
    copy->init(this);
    return copy;
}

QStringList FGenIntCommandFile::getEntryNames() const {
    return FTemplateTags::entryNames(getPlainContent());
}

void FGenIntCommandFile::updateFile(const QString& oldName, const QString& newName) {
    if (oldName.isEmpty() || newName.isEmpty() || oldName == newName) {
        return;
    }
    setPlainContent(FTemplateTags::renameTag(getPlainContent(), oldName, newName));
}
