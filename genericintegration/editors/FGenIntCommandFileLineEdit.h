#pragma once

#include <QLineEdit>

class FGenIntCommandFileEdit;

/** The field in which an entry is renamed at its tag. Enter and leaving it take the name, Escape drops it. */
class FGenIntCommandFileLineEdit : public QLineEdit {
    Q_OBJECT

 public:
    explicit FGenIntCommandFileLineEdit(FGenIntCommandFileEdit& edit);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    FGenIntCommandFileEdit& mEdit;
};
