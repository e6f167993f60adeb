#pragma once

#include <QWidget>

class FDropList;

/** A list of sample files, which are dropped on it or selected in a dialog. */
class FSampleList : public QWidget {
    Q_OBJECT

 public:
    /** @param isCheckable  whether a box at each file says that it becomes a template */
    FSampleList(const QString& id, const QString& label, const QString& hint, bool isCheckable, QWidget* parent);

    void addFiles(const QStringList& paths);
    QStringList paths() const;
    bool isChecked(int row) const;

 signals:
    void changed();

 private:
    void askFiles();
    void removeSelected();

    QString mLabel;
    bool mIsCheckable;
    FDropList* mpList;
};
