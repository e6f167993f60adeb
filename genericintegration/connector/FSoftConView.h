#pragma once

#include <QGraphicsView>

/** The view of a connector's scene. */
class FSoftConView : public QGraphicsView {
    Q_OBJECT

 public:
    explicit FSoftConView(QWidget* parent = nullptr);

 protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void hideEvent(QHideEvent* event) override;
};
