#pragma once

#include "genericintegration/setup/FTemplateFeeds.h"
#include "host/core/FQueuedCall.h"

class FItemLinks;
class FSoftConScene;

/**
 * Has the lines between the items of a scene follow what the templates use. It reads templates in the event loop, for
 * a short time each, and only while the scene is in sight.
 */
class FLinkFinder {
 public:
    FLinkFinder(const FSoftConScene& scene, FItemLinks& links) : mScene(scene), mLinks(links) {}

    void request() { mFind.request(); }

 private:
    void find();

    const FSoftConScene& mScene;
    FItemLinks& mLinks;
    FTemplateFeeds mFeeds;
    FQueuedCall mFind{[this] { find(); }};
};
