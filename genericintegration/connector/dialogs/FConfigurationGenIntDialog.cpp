#include "genericintegration/connector/dialogs/FConfigurationGenIntDialog.h"

#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/core/FModel.h"
#include "host/core/FUserStep.h"

#include <QPointer>

FConfigurationGenIntDialog::FConfigurationGenIntDialog(const QList<FDefinition*>& definitions,
                                                       const FDefinitionCustom* definition)
    : FConfigurationCustomDialog(definitions, definition) {}

// The configuration is made while the step of its definition is open.
void FConfigurationGenIntDialog::createNewDef() {
    const FUserStep step(label());
    mChosenDefinition = FDefinitionGenInt::create({}, QString(), {});
    accept();
}

void FConfigurationGenIntDialog::importLodmDef() {
    const QPointer<FConfigurationGenIntDialog> self(this);
    const FUserStep step(label());
    const FExpr<FDefinition> imported(
        FConfigurationGenInt::null()->importLodmDefinition(FExpr<FDefinitionCustom>(mpDefinition), QString()));
    if (self) {
        mChosenDefinition = imported;
        accept();
    }
}

void FConfigurationGenIntDialog::addConfiguration(QWidget* parent, const std::function<void(FManaged*)>& added) {
    QList<FDefinition*> definitions;
    for (FManaged* entity : FModel::instance()->getEntities(FDefinitionGenInt::null())) {
        definitions.append(dynamic_cast<FDefinitionGenInt*>(entity));
    }
    auto* dialog = new FConfigurationGenIntDialog(definitions, FDefinitionGenInt::null());
    dialog->setParent(parent, dialog->windowFlags());
    connect(dialog, &QDialog::accepted, parent, [dialog, parent, added] {
        auto* definition = dynamic_cast<FDefinitionGenInt*>(dialog->getChosenDefinition().ptr());
        if (!definition) {
            return;
        }
        const FUserStep step(label());
        const FExpr<FManaged> configuration(FConfigurationGenInt::create({}, QString(), true, definition));
        const auto tell = [configuration, added] {
            if (configuration) {
                added(configuration.ptr());
            }
        };
        QMetaObject::invokeMethod(parent, tell, Qt::QueuedConnection);
    });
    dialog->open();
}
