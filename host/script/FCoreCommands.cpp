#include "host/script/FCoreCommands.h"

#include "host/core/FDocuArea.h"
#include "host/core/FManaged.h"
#include "host/core/FObjectList.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

namespace {

bool addDocu(FManaged& object, const QString& text, const QString& area) {
    FEnum<FDocuArea> known;
    if (!known.setValue(area)) {
        FCmd::warnNow(object.getClass(), QStringLiteral("addDocu: there is no area \"%1\"; there are %2")
                                             .arg(area, known.getStringValues().join(QStringLiteral(", "))));
        return false;
    }
    object.addDocu(text, known.getValue());
    return true;
}

void managedCommands(FCmdTable& table) {
    table.member<FManaged>("addDocu", &addDocu, {"text", "area"}).data();
    table.member<FManaged>("setDbId", &FManaged::restoreDbId, {"id"}).hidden().systemFlag(2).data();
}

void listCommands(FCmdTable& table) {
    table.member<FObjectList>("count", &FObjectList::count).query();
    table.member<FObjectList>("at", &FObjectList::at, {"index"}).query();
}

}  // namespace

void registerCoreCommands() {
    FManaged::mClass.setCommands(&managedCommands);
    FObjectList::mClass.setCommands(&listCommands);
}
