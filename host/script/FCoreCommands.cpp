#include "host/script/FCoreCommands.h"

#include "host/core/FDocuArea.h"
#include "host/core/FManaged.h"
#include "host/core/FObjectList.h"
#include "host/core/FString.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"
#include "host/script/FProjectText.h"

#include <QRegularExpression>

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

// An exchange file has no numbers: there, a number would only take another object's.
bool setDbId(FManaged& object, int id) {
    if (!FProjectText::isBeingRestored()) {
        return false;
    }
    if (!object.restoreDbId(id)) {
        FCmd::warnNow(object.getClass(), QStringLiteral("%1 can't be the number of an object").arg(id),
                      QStringLiteral("The object gets another one"));
        return false;
    }
    return true;
}

void managedCommands(FCmdTable& table) {
    table.member<FManaged>("addDocu", &addDocu, {"text", "area"}).data();
    table.member<FManaged>("setDbId", &setDbId, {"id"}).hidden().systemFlag(2).data();
}

FExpr<FObject> elementOf(const FObjectList& list, int index) {
    if (index < 0 || index >= list.count()) {
        FCmd::warnNow(
            list.getClass(),
            QStringLiteral("the list has no element %1; it has %2, counted from 0").arg(index).arg(list.count()));
    }
    return list.at(index);
}

void listCommands(FCmdTable& table) {
    table.member<FObjectList>("count", &FObjectList::count).query();
    table.member<FObjectList>("at", &elementOf, {"index"}).query();
}

bool contains(const FString& text, const QString& part) {
    return text.getValue().contains(part);
}

int find(const FString& text, const QString& part, unsigned int from) {
    const bool isInside = from <= static_cast<unsigned int>(text.getValue().size());
    return isInside ? text.getValue().indexOf(part, static_cast<int>(from)) : -1;
}

QStringList split(const FString& text, const QString& separator) {
    static const QRegularExpression whiteSpace(QStringLiteral("\\s+"));
    return separator.isEmpty() ? text.getValue().split(whiteSpace, Qt::SkipEmptyParts)
                               : text.getValue().split(separator);
}

void textCommands(FCmdTable& table) {
    table.member<FString>("contains", &contains, {"text"}).query();
    table
        .member<FString>(
            "length", +[](const FString& text) { return text.getValue().size(); })
        .query();
    table.member<FString>("find", &find, {"text", "from=0"}).query();
    table.member<FString>("split", &split, {"separator=\"\""}).query();
}

}  // namespace

void registerCoreCommands() {
    FManaged::mClass.setCommands(&managedCommands);
    FObjectList::mClass.setCommands(&listCommands);
    FString::mClass.setCommands(&textCommands);
}
