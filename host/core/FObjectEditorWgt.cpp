#include "host/core/FObjectEditorWgt.h"

#include "host/core/FUserInterface.h"

#include <utility>

FObjectEditorWgt* FObjectEditorWgt::instance() {
    static auto* editor = new FObjectEditorWgt;
    return editor;
}

void FObjectEditorWgt::reinitializeAll() {
    mIsForAll = true;
    mRebuild.request();
}

void FObjectEditorWgt::rebuild() {
    FUserInterface::instance()->reinitializeEditor(std::exchange(mIsForAll, false));
}
