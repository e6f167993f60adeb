#pragma once

#include "host/core/FExport.h"
#include "host/gui/panels/FEntryTreeWgt.h"

class FDefinition;
class FEntryDefModel;

/** The entries of a definition, whose defaults are set. */
class MERIX_EXPORT FEntryDefsWgt : public FEntryTreeWgt {
    Q_OBJECT

 public:
    FEntryDefsWgt(FNavigator& navigator, QWidget* parent);

    FEntryDefModel& model() { return *mpModel; }
    /** Null shows nothing. */
    void setDefinition(FDefinition* definition);

 protected:
    QString summaryOf(const QModelIndex& index) const override;

 private:
    FEntryDefsWgt(FNavigator& navigator, FEntryDefModel* model, QWidget* parent);

    FEntryDefModel* mpModel;
};
