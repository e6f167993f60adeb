#pragma once

#include <QToolButton>

/** The button over a tag, which shows it with its name standing out. */
class FGenIntCommandFileEditEntryButton : public QToolButton {
    Q_OBJECT

 public:
    using QToolButton::QToolButton;

    void setEntryName(const QString& name);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QString mEntryName;
};
