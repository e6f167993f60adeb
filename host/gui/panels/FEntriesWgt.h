#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FNavigator.h"
#include "host/gui/base/FPendingEdit.h"

#include <QSet>
#include <QWidget>

class FConfiguration;
class FEntryDelegate;
class FEntryModel;
class QAction;
class QLabel;
class QModelIndex;
class QPoint;
class QTreeView;

/**
 * The entries of a configuration: values are edited in place; entries and occurrences are added, removed and renamed.
 * Below the tree are the places where templates use the present entry.
 */
class MERIX_EXPORT FEntriesWgt : public QWidget, public FPendingEdit {
    Q_OBJECT

 public:
    FEntriesWgt(FNavigator& navigator, QWidget* parent);

    FEntryModel& model() { return *mpModel; }
    /** Null shows nothing. */
    void setConfiguration(FConfiguration* configuration);
    /** Makes the entry of a path the present one; false if there is none. */
    bool showEntry(const QString& path);
    void commitEdit() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QAction* makeAction(const char* name, const char* icon, const QString& text, const QString& tip,
                        void (FEntriesWgt::*act)());
    void makeView();
    void fitColumns(int width, int before);
    void addEntry();
    void removeEntry();
    void renameEntry();
    void resetEntry();
    void addOccurrence();
    void removeOccurrence();
    void editValue(const QModelIndex& index);
    void tell(const QString& fault);
    void refresh();
    void keepExpanded();
    void restoreExpanded();
    void openMenu(const QPoint& position);
    void openLink(const QString& place);
    QModelIndex current() const;

    FNavigator& mNavigator;
    FEntryModel* mpModel;
    FEntryDelegate* mpDelegate;
    QTreeView* mpView;
    QLabel* mpDetails;
    QAction* mpAdd;
    QAction* mpRemove;
    QAction* mpRename;
    QAction* mpReset;
    QAction* mpAddOccurrence;
    QAction* mpRemoveOccurrence;
    QSet<QString> mClosed;  //!< paths of the groups that the user has closed
    QString mCurrent;       //!< path of the present entry
};
