#include "host/core/FPrototypes.h"

#include "host/core/FManaged.h"
#include "host/core/FScriptLanguage.h"
#include "host/core/FView.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <iostream>
#include <iterator>
#include <utility>

namespace {

struct Pending {
    FPrototypes::Build build;  // null for a place
    bool needsWindows;
    QByteArray place;
};

struct Registry {
    std::vector<Pending> pending;
    QHash<QString, const FObject*> byName;
};

// Built at the first use, since registrars of other libraries may run before this one's static objects exist, and
// never destroyed, since prototypes are used up to the very end.
Registry& registry() {
    static auto* theRegistry = new Registry;
    return *theRegistry;
}

struct Family {
    bool* flag;         // set while a prototype of the family is built
    const char* trace;  // printed with the class name
};

Family dataOf(FFamily family) {
    switch (family) {
        case FFamily::Object:
            return {&FObject::mInitPrototype, "init FObject prototype: "};
        case FFamily::Managed:
            return {&FManaged::mInitPrototype, "init FManaged prototype: "};
        case FFamily::View:
            break;
    }
    return {&FView::mInitPrototype, "init FView prototype: "};
}

/** What is pending with everything at its place. */
std::vector<Pending> inOrder(const std::vector<Pending>& pending) {
    std::vector<Pending> ordered;
    for (const Pending& next : pending) {
        const auto isPlace = [&next](const Pending& each) { return !each.build && each.place == next.place; };
        if (!next.build) {
            std::copy_if(pending.begin(), pending.end(), std::back_inserter(ordered),
                         [&](const Pending& each) { return each.build && each.place == next.place; });
        } else if (next.place.isEmpty() || std::none_of(pending.begin(), pending.end(), isPlace)) {
            ordered.push_back(next);
        }
    }
    return ordered;
}

/** Those that can be built now; the others stay. */
std::vector<FPrototypes::Build> takeReady() {
    std::vector<FPrototypes::Build> ready;
    std::vector<Pending> waiting;
    const bool hasWindows = FPrototypes::hasWindows();
    for (const Pending& next : inOrder(std::exchange(registry().pending, {}))) {
        if (next.needsWindows && !hasWindows) {
            waiting.push_back(next);
        } else {
            ready.push_back(next.build);
        }
    }
    auto& pending = registry().pending;
    pending.insert(pending.begin(), waiting.begin(), waiting.end());
    return ready;
}

}  // namespace

void FPrototypes::remember(Build build, bool needsWindows, const char* place) {
    registry().pending.push_back({build, needsWindows, place});
}

void FPrototypes::rememberPlace(const char* place) {
    registry().pending.push_back({nullptr, false, place});
}

// Not asked of Qt's widgets, which this library doesn't know.
bool FPrototypes::hasWindows() {
    const QCoreApplication* application = QCoreApplication::instance();
    return application && application->inherits("QApplication");
}

void FPrototypes::buildPending() {
    std::vector<const FObject*> built;
    for (auto builds = takeReady(); !builds.empty(); builds = takeReady()) {
        for (Build build : builds) {
            built.push_back(build());
        }
    }
    // Only now, since the tables name the prototypes of receivers, arguments and results.
    for (const FObject* prototype : built) {
        prototype->initCmds();
    }
}

QStringList FPrototypes::getNames() {
    buildPending();
    QStringList names(registry().byName.keys());
    std::sort(names.begin(), names.end());
    return names;
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
    const Family known = dataOf(family);
    if (VERBOSE != 0) {
        std::cout << known.trace << qPrintable(data.getName()) << std::endl;
    }
    *known.flag = true;
    data.mpNull = make();
    FObject::addPrototype(data.mpNull);
    *known.flag = false;
    return data.mpNull;
}
