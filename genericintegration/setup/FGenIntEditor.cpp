#include "genericintegration/setup/FGenIntEditor.h"

#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/design/FConnectorInterface.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    using F = FGenIntEditor;
    table.creator(
        "genericIntegrationEditor", +[](const FNewName& name) { return F::create(name.name); });
    table.attribute<F>("setDefinition", &F::setDefinition, &F::getDefinition, {"definition"})
        .attrName("Definition")
        .data();
}

}  // namespace

FClassData FGenIntEditor::mClass("FGenIntEditor", &FManaged::mClass, &commands, &FGenIntEditor::fields,
                                 FDefinitionGenInt::shownInDefinitions);

std::vector<std::unique_ptr<FStateField>> FGenIntEditor::fields() {
    return FStateFields<FGenIntEditor>().member(&FGenIntEditor::mDefinition).take();
}

FGenIntEditor::FGenIntEditor(const QString& name) : FClass(name) {
    setImediateUpdate(!isInitializingPrototype());
}

FGenIntEditor* FGenIntEditor::create(const QString& name) {
    auto* editor = new FGenIntEditor(name);
    editor->registerObject();
    return editor;
}

FGenIntEditor* FGenIntEditor::setDefinition(const FExpr<FDefinitionGenInt>& definition) {
    recordChange();
    mDefinition = definition;
    mIsAwaited = !FMerixCtrl::instance()->isLoadingProject();
    setOutOfDate(true);
    return this;
}

// Undo, redo and loading restore the connectors themselves.
bool FGenIntEditor::doUpdate() const {
    const FHistory& history = *FHistory::instance();
    const bool mayChange = history.inTransaction() && !history.isReplaying();
    if (mDefinition && mIsAwaited && mayChange) {
        makeConnectors();
    }
    mIsAwaited = false;
    return FManaged::doUpdate();
}

void FGenIntEditor::makeConnectors() const {
    for (FManaged* object : FObjectManager::instance()->getManaged(FGenIntComputation::null())) {
        const auto* computation = dynamic_cast<const FGenIntComputation*>(object);
        if (computation && computation->definition() == mDefinition.ptr()) {
            FConnectorInterface::create(computation->getName() + QStringLiteral("_Connector"),
                                        FExpr<FExternComputation>(computation));
        }
    }
}
