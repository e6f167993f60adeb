#pragma once

#include <QListWidget>

/** A list that takes files which are dropped on it. */
class FDropList : public QListWidget {
    Q_OBJECT

 public:
    explicit FDropList(QWidget* parent);

 signals:
    /** @param paths  of existing files */
    void dropped(const QStringList& paths);

 protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
};
