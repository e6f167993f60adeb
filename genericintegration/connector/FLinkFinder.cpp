#include "genericintegration/connector/FLinkFinder.h"

#include "genericintegration/connector/FItemLinks.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/FSoftConEntryItem.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"

#include <QElapsedTimer>
#include <QGraphicsView>

namespace {

bool isInSight(const QGraphicsScene& scene) {
    const QList<QGraphicsView*> views = scene.views();
    return std::any_of(views.begin(), views.end(), [](const QGraphicsView* view) { return view->isVisible(); });
}

}  // namespace

void FLinkFinder::find() {
    constexpr int slice = 20;  // milliseconds
    const FSetUpObjects setUp(mScene.getComputation());
    if (!isInSight(mScene) || !setUp.definition()) {
        return;
    }
    QHash<const FObject*, const FSoftConObjectItem*> inputs;
    QSet<const FObject*> entries;
    for (const FSoftConObjectItem* item : mScene.objectItems()) {
        if (isUpperArea(item->getArea())) {
            const FObject* object = item->getObject().getStored();
            inputs.insert(object, item);
            if (dynamic_cast<const FSoftConEntryItem*>(item)) {
                entries.insert(object);
            }
        }
    }
    QElapsedTimer timer;
    timer.start();
    while (!entries.isEmpty() && mFeeds.readNext(*setUp.definition())) {
        if (timer.hasExpired(slice)) {
            request();
            return;
        }
    }
    std::vector<FItemLinks::Link> links;
    for (const auto& [entry, file] : mFeeds.find(*setUp.configuration(), *setUp.definition(), entries)) {
        const FSoftConObjectItem* to = inputs.value(file);
        if (to) {
            links.push_back({inputs.value(entry), to});
        }
    }
    mLinks.setLinks(links);
}
