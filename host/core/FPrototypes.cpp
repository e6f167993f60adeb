#include "host/core/FPrototypes.h"

#include "host/core/FManaged.h"
#include "host/core/FScriptLanguage.h"

#include <QHash>

#include <iostream>

namespace {

struct Registry {
    std::vector<FPrototypes::Build> pending;
    QHash<QString, const FObject*> byName;
};

// Built at the first use, since registrars of other libraries may run before this one's static objects exist, and
// never destroyed, since prototypes are asked for up to the very end.
Registry& registry() {
    static auto* theRegistry = new Registry;
    return *theRegistry;
}

}  // namespace

void FPrototypes::remember(Build build) {
    registry().pending.push_back(build);
}

void FPrototypes::buildPending() {
    std::vector<const FObject*> built;
    while (!registry().pending.empty()) {
        std::vector<Build> builds;
        builds.swap(registry().pending);
        for (Build build : builds) {
            built.push_back(build());
        }
    }
    // Only now, since the tables name the prototypes of receivers, arguments and results.
    for (const FObject* prototype : built) {
        prototype->initCmds();
    }
}

void FPrototypes::add(const FObject* prototype) {
    registry().byName.insert(prototype->getClass(), prototype);
}

const FObject* FPrototypes::find(const QString& className) {
    buildPending();
    return registry().byName.value(className);
}

const FObject* FPrototypes::build(FClassData& data, FFamily family, const std::function<const FObject*()>& make) {
    if (data.mpNull) {
        return data.mpNull;
    }
    FScriptLanguage::instance()->addCommandPrototypes(data);
    if (VERBOSE != 0) {
        std::cout << (family == FFamily::Managed ? "init FManaged prototype: " : "init FObject prototype: ")
                  << qPrintable(data.getName()) << std::endl;
    }
    bool& flag = family == FFamily::Managed ? FManaged::mInitPrototype : FObject::mInitPrototype;
    flag = true;
    data.mpNull = make();
    FObject::addPrototype(data.mpNull);
    flag = false;
    return data.mpNull;
}
