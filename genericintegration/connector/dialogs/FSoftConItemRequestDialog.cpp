#include "genericintegration/connector/dialogs/FSoftConItemRequestDialog.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QTreeView>
#include <QVBoxLayout>

FSoftConItemRequestDialog::FSoftConItemRequestDialog(QWidget* parent, const QStringList& files)
    : QDialog(parent), mFiles(files) {
    auto* view = new QTreeView(this);
    view->setAttribute(Qt::WA_NativeWindow);
    auto* model = new QFileSystemModel(view);
    view->setModel(model);
    if (!mFiles.isEmpty()) {
        view->setRootIndex(model->setRootPath(QFileInfo(mFiles.first()).absolutePath()));
    }
    auto* column = new QVBoxLayout(this);
    column->addWidget(view);
}
