#include "host/gui/panels/FEntryDefsWgt.h"

#include "host/design/FEntryDef.h"
#include "host/gui/panels/FEntryDefModel.h"

namespace {

constexpr double nameShare = 0.34;
constexpr double defaultShare = 0.26;
constexpr double typeShare = 0.22;

}  // namespace

FEntryDefsWgt::FEntryDefsWgt(FNavigator& navigator, QWidget* parent)
    : FEntryDefsWgt(navigator, new FEntryDefModel, parent) {}

FEntryDefsWgt::FEntryDefsWgt(FNavigator& navigator, FEntryDefModel* model, QWidget* parent)
    : FEntryTreeWgt(navigator, model,
                    {"definitionTree", "definitionBar", "definitionDetails", "addDefinedEntry", "removeDefinedEntry",
                     "renameDefinedEntry", "Entries of the definition"},
                    {nameShare, defaultShare, typeShare}, parent),
      mpModel(model) {
    refresh();
}

void FEntryDefsWgt::setDefinition(FDefinition* definition) {
    if (definition != mpModel->definition()) {
        startAnew();
    }
    mpModel->setDefinition(definition);
}

QString FEntryDefsWgt::summaryOf(const QModelIndex& index) const {
    const FEntryDef& entry = *mpModel->definitionOf(index);
    return entry.getDescription().isEmpty() ? entry.getFullName()
                                            : QStringLiteral("%1: %2").arg(entry.getFullName(), entry.getDescription());
}
