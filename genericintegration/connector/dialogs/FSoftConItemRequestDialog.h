#pragma once

#include <QDialog>
#include <QStringList>

/** Shows the folder of files. */
class FSoftConItemRequestDialog : public QDialog {
    Q_OBJECT

 public:
    FSoftConItemRequestDialog(QWidget* parent, const QStringList& files);

 private:
    QStringList mFiles;
};
