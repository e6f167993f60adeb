#pragma once

#include <QLineEdit>

class FGenIntCommandFileEdit;

/**
 * The field in which an entry is renamed at its tag. Enter and leaving it take the name, Escape drops it. It stays
 * within the text, and grows with what is typed.
 */
class FGenIntCommandFileLineEdit : public QLineEdit {
    Q_OBJECT

 public:
    explicit FGenIntCommandFileLineEdit(FGenIntCommandFileEdit& edit);

    /** Shows a name at a place of the text widget. */
    void start(const QString& name, const QPoint& place);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    void fit();

    FGenIntCommandFileEdit& mEdit;
};
