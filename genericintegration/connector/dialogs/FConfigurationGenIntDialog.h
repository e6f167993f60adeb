#pragma once

#include "host/gui/panels/FConfigurationCustomDialog.h"

#include <functional>

/** Gives a new configuration of an integration its definition. */
class FConfigurationGenIntDialog : public FConfigurationCustomDialog {
    Q_OBJECT

 public:
    FConfigurationGenIntDialog(const QList<FDefinition*>& definitions, const FDefinitionCustom* definition);

    /**
     * Opens a dialog above a window. When it is accepted, adds a configuration to the project, as one step with its
     * definition. @param added  is called with the configuration
     */
    static void addConfiguration(QWidget* parent, const std::function<void(FManaged*)>& added);

 protected slots:
    void createNewDef() override;
    void importLodmDef() override;

 private:
    static QString label() { return QStringLiteral("New configuration"); }
};
