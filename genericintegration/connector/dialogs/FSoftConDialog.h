#pragma once

#include <QFileDialog>

class QItemSelection;
class QLineEdit;

/**
 * Asks for existing files and folders, any number of them. The field with the names always lists exactly those that are
 * marked.
 */
class FSoftConDialog : public QFileDialog {
    Q_OBJECT

 public:
    FSoftConDialog(QWidget* parent, const QString& caption, const QString& directory, const QString& filter);

    void accept() override;
    virtual void updateLineEdit(const QItemSelection& selected, const QItemSelection& deselected);
    virtual void lineEditChanged(const QString& text);

 protected:
    QLineEdit* lineEdit() const;
    bool isAnySelectedThere() const;

 private:
    QString mShownText;  //!< of the field, as far as its changes were told
};
