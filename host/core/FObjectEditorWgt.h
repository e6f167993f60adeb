#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"

/**
 * The editor that shows the attributes of objects. Requests are executed from the event loop, once for any number of
 * them. Without windows nothing happens.
 */
class MERIX_EXPORT FObjectEditorWgt {
 public:
    static FObjectEditorWgt* instance();

    /** The fields of the selected objects are rebuilt. */
    void reinitialize() { mRebuild.request(); }
    /** The fields of all objects that have an editor are rebuilt. */
    void reinitializeAll();

 private:
    FObjectEditorWgt() = default;
    void rebuild();

    bool mIsForAll = false;
    FQueuedCall mRebuild{[this] { rebuild(); }};
};
