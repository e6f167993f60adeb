#include "host/gui/window/FSituation.h"

#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/gui/base/FRunTarget.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/window/FUnsavedWork.h"
#include "host/run/FExternComputation.h"

namespace {

QString labelOrNull(const QStringList& labels, int place) {
    return place < 0 || place >= labels.size() ? QString() : QLatin1String("") + labels.at(place);
}

}  // namespace

FSituation FSituation::now(const FRunTarget& target, const FUnsavedWork& unsaved) {
    FSituation situation;
    situation.hasFile = !FMerixCtrl::instance()->getProjectFile().isEmpty();
    situation.hasProject = situation.hasFile || unsaved.isThere() || !FObjectManager::instance()->getNames().isEmpty();
    situation.isUnsaved = unsaved.isThere();
    situation.selected = FObjectTreeWgt::selectedObjects().size();
    situation.computation = target.get();
    if (const FExternComputation* computation = situation.computation) {
        situation.isRunning = !computation->canRun();
        situation.hasResults = static_cast<bool>(computation->getCurrentResults());
        situation.canReread = computation->canRereadResults();
    }
    situation.isAnyRunning = FRunTarget::isAnyRunning();
    const QStringList done = FHistory::instance()->getLabels();
    situation.undoLabel = labelOrNull(done, done.size() - 1);
    situation.redoLabel = labelOrNull(FHistory::instance()->getUndoneLabels(), 0);
    return situation;
}
