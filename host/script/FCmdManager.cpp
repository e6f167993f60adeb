#include "host/script/FCmdManager.h"

#include "host/core/FNearestName.h"
#include "host/core/FNull.h"
#include "host/script/FCreateCmd.h"
#include "host/script/FMemberCmd.h"

#include <algorithm>

namespace {

/** The C++ class that executes commands of a kind, and its class data. */
struct Family {
    FClassData* data;
    FObject* (*make)(const FCmdRow& row);
};

template <class T>
Family familyOf() {
    return {&T::mClass, [](const FCmdRow& row) -> FObject* { return new T(row); }};
}

Family familyOf(FCmdRow::Kind kind) {
    switch (kind) {
        case FCmdRow::Kind::Create:
            return familyOf<FCreateCmd>();
        case FCmdRow::Kind::CreateEntity:
            return familyOf<FCreateEntityCmd>();
        case FCmdRow::Kind::Attribute:
            return familyOf<FAttribCmd>();
        case FCmdRow::Kind::Member:
            return familyOf<FMemberCmd>();
        case FCmdRow::Kind::Global:
            break;
    }
    return familyOf<FCmd>();
}

}  // namespace

FCmdManager* FCmdManager::instance() {
    static auto* manager = new FCmdManager;
    return manager;
}

const FCmdTable* FCmdManager::tableOf(const FClassData& data) const {
    return mTables.value(&data).get();
}

void FCmdManager::addTable(FClassData& data) {
    if (!data.getCommands() || mTables.contains(&data)) {
        return;
    }
    auto table = std::make_shared<FCmdTable>(data);
    data.getCommands()(*table);
    mTables.insert(&data, table);
    for (const auto& row : table->getRows()) {
        addPrototype(*row);
        mRows.push_back(row.get());
    }
}

void FCmdManager::addPrototype(FCmdRow& row) {
    const Family family = familyOf(row.kind);
    mClassNames.push_back(row.className().toLatin1());
    // Lives to the end of the program.
    row.commandClass = new FClassData(mClassNames.back().constData(), family.data);
    FPrototypes::build(*row.commandClass, FFamily::Object, [&] { return family.make(row); });
}

void FCmdManager::registerTable(FClassData& data) {
    const FCmdTable* table = tableOf(data);
    if (!table) {
        return;
    }
    for (const auto& row : table->getRows()) {
        if (row->isCreator()) {
            mCreators[row->name].push_back(row.get());
        } else if (row->isMember()) {
            mMembers[row->name].push_back(row.get());
        } else {
            mGlobals[row->name].push_back(row.get());
        }
    }
    for (const QString& command : table->getHidden()) {
        hide(data.mpNull, FObject::getPrototype(command));
    }
}

void FCmdManager::hide(const FObject* classPrototype, const FObject* commandPrototype) {
    if (classPrototype && commandPrototype) {
        mHidden[&classPrototype->getClassData()].insert(commandPrototype);
    }
}

QStringList FCmdManager::hiddenUnknownNames() const {
    QStringList names;
    for (const auto& table : mTables) {
        for (const QString& name : table->getHidden()) {
            if (!FObject::getPrototype(name)) {
                names.append(name);
            }
        }
    }
    return names;
}

bool FCmdManager::isHidden(const FClassData& data, const FCmdRow& row) const {
    for (const FClassData* cls = &data; cls; cls = cls->getSuper()) {
        if (mHidden.value(cls).contains(row.commandClass->mpNull)) {
            return true;
        }
    }
    return false;
}

std::vector<const FCmdRow*> FCmdManager::visibleMembers(const FClassData& data) const {
    std::vector<const FCmdRow*> found;
    for (const FClassData* cls = &data; cls; cls = cls->getSuper()) {
        const FCmdTable* table = tableOf(*cls);
        if (!table) {
            continue;
        }
        for (const auto& row : table->getRows()) {
            if (row->isMember() && !isHidden(data, *row)) {
                found.push_back(row.get());
            }
        }
    }
    return found;
}

std::vector<const FCmdRow*> FCmdManager::findMembers(const FClassData& data, const QString& name) const {
    std::vector<const FCmdRow*> found = visibleMembers(data);
    found.erase(std::remove_if(found.begin(), found.end(), [&name](const FCmdRow* row) { return row->name != name; }),
                found.end());
    return found;
}

std::vector<const FCmdRow*> FCmdManager::membersOf(const FClassData& data) const {
    std::vector<const FCmdRow*> rows = visibleMembers(data);
    // Nearest class first becomes base first; the rows of one class keep their order.
    std::stable_sort(rows.begin(), rows.end(), [](const FCmdRow* a, const FCmdRow* b) {
        return a->owner != b->owner && a->owner->isSuperClassOf(*b->owner);
    });
    return rows;
}

std::vector<const FObject*> FCmdManager::getAttributesByReceiver(const FObject* receiver) const {
    std::vector<const FObject*> attributes;
    for (const FCmdRow* row : membersOf(receiver->getClassData())) {
        if (row->kind == FCmdRow::Kind::Attribute) {
            attributes.push_back(row->commandClass->mpNull);
        }
    }
    return attributes;
}

const FCmdRow* FCmdManager::creatorOf(const FClassData& data) const {
    const FCmdTable* table = tableOf(data);
    if (table) {
        for (const auto& row : table->getRows()) {
            if (row->isCreator()) {
                return row.get();
            }
        }
    }
    return nullptr;
}

QStringList FCmdManager::memberNames(const FClassData& data) const {
    QStringList names;
    for (const FCmdRow* row : visibleMembers(data)) {
        names.append(row->name);
    }
    names.removeDuplicates();
    return names;
}

QString didYouMean(const QString& name, const QStringList& known) {
    const QString nearest = nearestName(name, known);
    return nearest.isEmpty() ? QString() : QStringLiteral(" (did you mean \"%1\"?)").arg(nearest);
}

QString FCmdManager::unknownMember(const FClassData& data, const QString& name) const {
    if (&data == &FNull::mClass) {
        return QStringLiteral("%1: there is no object to apply it to: its receiver is NULL").arg(name);
    }
    return QStringLiteral("%1 has no command \"%2\"%3").arg(data.getName(), name, didYouMean(name, memberNames(data)));
}

QString FCmdManager::unknownCreator(const QString& name) const {
    return QStringLiteral("there is no creator \"%1\"%2").arg(name, didYouMean(name, creatorNames()));
}

QString FCmdManager::unknownGlobal(const QString& name) const {
    return QStringLiteral("there is no function \"%1\"%2").arg(name, didYouMean(name, globalNames()));
}

QString FCmdManager::unknownMemberOfAnyClass(const QString& name) const {
    return QStringLiteral("there is no command \"%1\"%2").arg(name, didYouMean(name, QStringList(mMembers.keys())));
}
