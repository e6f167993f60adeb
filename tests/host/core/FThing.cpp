#include "tests/host/core/FThing.h"

#include "host/core/FInitPrototype.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table
        .creator("thing",
                 +[](const FNewName& name, double number) {
                     FThing* thing = FThing::create(name.name);
                     thing->setNumber(number);
                     return thing;
                 },
                 {"number=0"})
        .savedArguments([](const FObject* object) {
            return FDouble(static_cast<const FThing*>(object)->getNumber()).toHistoryString();
        });
    table.attribute<FThing>("setNumber", &FThing::setNumber, &FThing::getNumber, {"number"}).data();
    table.attribute<FThing>("setText", &FThing::setText, &FThing::getText, {"text"}).data();
    table.attribute<FThing>("setFriend", &FThing::setFriend, &FThing::getFriend, {"friend"}).data();
    table.member<FThing>("getNumber", &FThing::getNumber).query();
    table.member<FThing>("add", &FThing::add, {"a", "b=1"}).query();
    table.member<FThing>("which", +[](const FThing&, int) { return QStringLiteral("int"); }, {"value"}).query();
    table.member<FThing>("which", +[](const FThing&, const QString&) { return QStringLiteral("string"); }, {"value"})
        .query();
}

const FInitPrototypes<FThing> types;

}  // namespace

FClassData FThing::mClass("FThing", &FManaged::mClass, &commands, &FThing::fields);

std::vector<std::unique_ptr<FStateField>> FThing::fields() {
    return FStateFields<FThing>().member(&FThing::mNumber).text(&FThing::mText).linked(&FThing::mFriend).take();
}

FThing* FThing::create(const QString& name) {
    auto* thing = new FThing(name);
    thing->registerObject();
    return thing;
}

FThing* FThing::setNumber(double number) {
    mNumber = number;
    setOutOfDate(true);
    return this;
}

void FThing::setFriend(const FExpr<FThing>& other) {
    mFriend.unregisterClient(this);
    if (other.registerClient(this)) {
        mFriend = other;
    } else {
        mFriend.restoreClient(this);
    }
}

bool FThing::doUpdate() const {
    ++mUpdates;
    mAtUpdate();
    return FManaged::doUpdate();
}

void FThing::leaveModel() {
    if (mText == QLatin1String("owner")) {
        FManaged::destroy(mFriend.ptr());
    }
}
