#pragma once

#include "host/core/FExport.h"
#include "host/gui/panels/FEntryTreeWgt.h"

class FConfiguration;
class FEntryModel;

/** The entries of a configuration, whose values are set and reset, and whose occurrences are added and removed. */
class MERIX_EXPORT FEntriesWgt : public FEntryTreeWgt {
    Q_OBJECT

 public:
    FEntriesWgt(FNavigator& navigator, QWidget* parent);

    FEntryModel& model() { return *mpModel; }
    /** Null shows nothing. */
    void setConfiguration(FConfiguration* configuration);

 protected:
    void updateActions() override;
    QString summaryOf(const QModelIndex& index) const override;
    void fillMenu(QMenu& menu) override;

 private:
    FEntriesWgt(FNavigator& navigator, FEntryModel* model, QWidget* parent);
    void resetEntry();
    void addOccurrence();
    void removeOccurrence();

    FEntryModel* mpModel;
    QAction* mpReset;
    QAction* mpAddOccurrence;
    QAction* mpRemoveOccurrence;
};
