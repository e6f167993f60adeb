#pragma once

#include <QAbstractButton>

class QMenu;

/** A large button with an icon, a title and a description below it. */
class FStartTile : public QAbstractButton {
    Q_OBJECT

 public:
    FStartTile(const QIcon& icon, const QString& title, const QString& description, QWidget* parent);

    /** A menu that opens in place of a click. */
    void setMenu(QMenu* menu);
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QFont titleFont() const;

    QString mDescription;
};
