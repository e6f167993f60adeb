#pragma once

#include "host/core/FExport.h"
#include "host/core/FExprBase.h"

#include <QList>
#include <QWidget>

class FAttributeEditor;
class FAttributeQuery;
class FCmdRow;
class QBoxLayout;
class QLabel;
class QVBoxLayout;

/** The attributes that objects share, each as a row of label and field, in groups. */
class MERIX_EXPORT FAttributeForm : public QWidget {
 public:
    explicit FAttributeForm(QWidget* parent);

    /** Shows the attributes of an object or of a list of objects; an empty handle leaves the form empty. */
    void setReceiver(const FExprBase& receiver);
    /** Puts labels above their fields if both don't fit side by side into a width. */
    void fit(int width);
    const QList<FAttributeEditor*>& fields() const { return mFields; }
    void hold(bool isHeld);
    /** Called when an attribute was changed after which the fields have to be rebuilt. */
    void setRebuild(std::function<void()> rebuild) { mRebuild = std::move(rebuild); }

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void clear();
    QWidget* addGroup(const QString& title);
    void addRow(QWidget* group, const FAttributeQuery& query, const FCmdRow& row, const FExprBase& receiver);
    void alignLabels();

    QVBoxLayout* mpColumn;
    QWidget* mpGroups = nullptr;  //!< contains all groups; rebuilt for each receiver
    QList<FAttributeEditor*> mFields;
    QList<QLabel*> mLabels;
    QList<QBoxLayout*> mRows;
    int mWidth = 0;  //!< that the form has to fit into; 0 if it isn't known
    bool mIsHeld = false;
    std::function<void()> mRebuild;
};
