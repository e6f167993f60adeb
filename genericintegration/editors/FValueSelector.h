#pragma once

#include "genericintegration/templates/FGenIntResultsFileValue.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class FToolButton;
class QComboBox;

/** Chooses the current value of a result template and names it, adds values and deletes them. */
class FValueSelector : public QWidget {
    Q_OBJECT

 public:
    FValueSelector();

    /**
     * @param values  in the order of the items
     * @param all  in the order of the template, which distinguishes values of one name
     * @param current  the one to select; may be empty
     */
    void show(const std::vector<FExpr<FObject>>& values, const std::vector<FExpr<FObject>>& all,
              const FExpr<FGenIntResultsFileValue>& current);
    using QWidget::show;
    /** Shows the name of the current value. */
    void showName(const QString& name);
    /** The same while it is being typed: what is typed stays until it is complete. */
    void showName(const QString& name, const QString& typed);
    void enableFields(bool hasValue);

    /** The name that is shown. */
    QString name() const;
    /** The number of the selected value in the template; -1 if none is selected. */
    int number() const;
    /** Selects the value of a name, as the user does; false if there is none. */
    bool choose(const QString& name);
    void focusName();
    /**
     * Has the user type a name in place of the present one.
     * @param back  gets the focus when Enter ends the name
     */
    void startNaming(QWidget* back);
    const QComboBox& combo() const { return *mpNames; }

 signals:
    void chosen(const QString& name);
    void nameEdited(const QString& name);
    void nameFinished();
    void addWanted(bool checked);
    void deleteWanted(bool checked);

 private:
    QComboBox* mpNames;
    FToolButton* mpDelete;
    FToolButton* mpAdd;
    QPointer<QWidget> mpBack;
};
