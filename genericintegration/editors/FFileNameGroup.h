#pragma once

#include "host/gui/base/FGroupBox.h"

class FCommittedEdit;

/** The name of the output file that a result template describes, and the folders in which a run writes it. */
class FFileNameGroup : public FGroupBox {
    Q_OBJECT

 public:
    FFileNameGroup();

    void show(const QString& fileName);
    using QWidget::show;
    void showFolders(const QString& folders);
    QString name() const;
    QString folders() const;
    /** Completes what is being typed. */
    void commit();

 signals:
    void nameEntered();
    void foldersEntered();

 private:
    FCommittedEdit* mpName;
    FCommittedEdit* mpFolders;
};
