#pragma once

#include <QLineEdit>

/**
 * A line of text that goes into the model when it is complete: with Enter, or when the focus leaves it. Escape brings
 * back what the model holds.
 */
class FCommittedEdit : public QLineEdit {
    Q_OBJECT

 public:
    FCommittedEdit();

    /** Shows what the model holds; leaves alone what is being typed. */
    void show(const QString& text);
    using QWidget::show;
    /** Completes what is being typed. */
    void commit();

 signals:
    /** Another text was typed, and is complete. */
    void entered();

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    QString mShown;
};
