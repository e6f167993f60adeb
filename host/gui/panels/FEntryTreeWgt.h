#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FNavigator.h"
#include "host/gui/base/FPendingEdit.h"

#include <QSet>
#include <QWidget>

#include <functional>

class FEntryDelegate;
class FEntryTreeModel;
class QAction;
class QLabel;
class QMenu;
class QModelIndex;
class QPoint;
class QToolBar;
class QTreeView;

/**
 * A tree of entries with its actions: names and values are edited in place; entries of the definition are added,
 * removed and renamed. Below the tree are the places where templates use the present entry.
 */
class MERIX_EXPORT FEntryTreeWgt : public QWidget, public FPendingEdit {
    Q_OBJECT

 public:
    /** Makes the entry of a path the present one; false if there is none. */
    bool showEntry(const QString& path);
    void commitEdit() override;
    Refusal refusal() const override;
    QWidget* focusRefused() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
    /** Object names of widgets and actions; those of two trees in one window must differ. */
    struct Names {
        const char* tree;
        const char* bar;
        const char* details;
        const char* add;
        const char* remove;
        const char* rename;
        const char* title;  //!< of the tree, for screen readers
    };

    /** @param shares  of the width that the columns get at first; the last one gets the rest */
    FEntryTreeWgt(FNavigator& navigator, FEntryTreeModel* model, const Names& names, const QList<double>& shares,
                  QWidget* parent);

    template <class Tree>
    QAction* makeAction(const char* name, const char* icon, const QString& text, const QString& tip,
                        void (Tree::*act)()) {
        return newAction(name, icon, text, tip, [this, act] { (static_cast<Tree*>(this)->*act)(); });
    }
    QModelIndex current() const;
    /** Tells why something wasn't done; nothing if the text is empty. */
    void tell(const QString& fault);
    /** Forgets which groups are closed, and the present entry: another definition or configuration follows. */
    void startAnew();
    /** Why actions on the present entry aren't possible: there is none; else empty. */
    QString whyNoEntry() const;
    /** Enables the actions for the present entry. */
    virtual void updateActions();
    /** What is known of the present entry, before the places where it is used. */
    virtual QString summaryOf(const QModelIndex& index) const = 0;
    virtual void fillMenu(QMenu& menu);
    void refresh();

 private:
    QAction* newAction(const char* name, const char* icon, const QString& text, const QString& tip,
                       std::function<void()> act);
    void makeView(const Names& names);
    void fitColumns(int width, int before);
    void addEntry();
    void removeEntry();
    void renameEntry();
    void editValue(const QModelIndex& index);
    void keepExpanded();
    void restoreExpanded();
    void openMenu(const QPoint& position);
    void openLink(const QString& place);

    FNavigator& mNavigator;
    FEntryTreeModel* mpModel;
    QList<double> mShares;
    FEntryDelegate* mpDelegate;
    QToolBar* mpBar;
    QTreeView* mpView;
    QLabel* mpDetails;
    QAction* mpAdd;
    QAction* mpRemove;
    QAction* mpRename;
    QSet<QString> mClosed;  //!< paths of the groups that the user has closed
    QString mCurrent;       //!< path of the present entry
};
