#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/lodm/FDefinitionCustom.h"

#include <QDialog>

class QListWidget;

/** Asks for the definition of a new configuration: one of the model, a new one, or one from an exchange file. */
class MERIX_EXPORT FConfigurationCustomDialog : public QDialog {
    Q_OBJECT

 public:
    /** After the dialog was accepted; empty if there was nothing to import. */
    const FExpr<FDefinition>& getChosenDefinition() const { return mChosenDefinition; }

 protected slots:
    /** Makes a definition, chooses it, and accepts. */
    virtual void createNewDef() = 0;
    /** Asks for an exchange file, chooses its definition, and accepts. */
    virtual void importLodmDef() = 0;

 protected:
    /**
     * @param definitions  to choose from
     * @param definition   of the class that is made and imported
     */
    FConfigurationCustomDialog(const QList<FDefinition*>& definitions, const FDefinitionCustom* definition);

    FExpr<FDefinition> mChosenDefinition;
    const FDefinitionCustom* mpDefinition;

 private:
    void chooseListed();

    QList<FExpr<FDefinition>> mListed;
    QListWidget* mpList;
};
