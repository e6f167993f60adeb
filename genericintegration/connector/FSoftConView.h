#pragma once

#include <QGraphicsView>

class FSoftConScene;

/** The view of a connector's scene. */
class FSoftConView : public QGraphicsView {
    Q_OBJECT

 public:
    explicit FSoftConView(QWidget* parent = nullptr);

    /** Null as long as the view has none. */
    FSoftConScene* connectorScene() const;
    /** The room that a scene of at least that height can fill, with a margin at its ends. */
    QRect roomForScene(double leastHeight) const;

 protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

 private:
    /** Until the user scrolls, shows the top of what is larger than the view, with the computation in the middle. */
    void keepAtStart(QScrollBar* bar, bool& isAtStart);
    int startOf(const QScrollBar& bar) const;

    bool mIsLeftAtStart = true;
    bool mIsTopAtStart = true;
    double mRatio = devicePixelRatioF();  //!< for which the scene has painted its pictures
};
