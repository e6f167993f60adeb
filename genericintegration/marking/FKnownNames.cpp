#include "genericintegration/marking/FKnownNames.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FExportsGroup.h"
#include "genericintegration/templates/FGenIntFile.h"

bool FKnownNames::update(const FDefinitionGenInt& definition) {
    QStringList files;
    for (const FExpr<FGenIntFile>& file : definition.getCommandFiles()) {
        if (file) {
            files.append(FExportsGroup::prefix() + file->getFileName());
        }
    }
    const quint64 number = definition.getEntryMapNumber();
    if (number == mEntryMapNumber && files == mFiles) {
        return false;
    }
    mEntryMapNumber = number;
    mFiles = files;
    mNames = FFoldedNames(QStringList(definition.getEntryMap().keys()) + files);
    return true;
}
