#pragma once

#include <QDialog>

class FConnectorInterface;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/** Asks for results of other connectors that input files are to be linked to. */
class FSoftConConnectConnectorDialog : public QDialog {
    Q_OBJECT

 public:
    /** @param connector  the calling one, whose results aren't offered; may be null */
    FSoftConConnectConnectorDialog(QWidget* parent, const FConnectorInterface* connector);

    /** The script texts of the selected rows, from top to bottom. */
    QStringList getSelectedExpressions() const;

 public slots:
    void currentItemChanged(QTreeWidgetItem* pCur, QTreeWidgetItem* pPrev);

 private:
    void fill(const FConnectorInterface* connector);

    QTreeWidget* mTree;
    QPushButton* mAddButton;
};
