#include "host/core/FDocuArea.h"
#include "host/core/FManaged.h"
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

}  // namespace

void managedCommands(FCmdTable& table) {
    table.member<FManaged>("addDocu", &addDocu, {"text", "area"}).data();
    table.member<FManaged>("setDbId", &FManaged::restoreDbId, {"id"}).hidden().systemFlag(2).data();
}
