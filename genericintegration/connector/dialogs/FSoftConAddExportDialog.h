#pragma once

#include <QDialog>

#include <functional>

/** Asks the user to select geometry in the tree of objects, and makes an export item of it. */
class FSoftConAddExportDialog : public QDialog {
    Q_OBJECT

 public:
    /** @param addSelected  makes an item of the objects that are selected; may be empty */
    FSoftConAddExportDialog(QWidget* parent, std::function<void()> addSelected);

 public slots:
    void addGeometry();

 private:
    std::function<void()> mAddSelected;
};
