#pragma once

#include "host/core/FExport.h"

#include <QWidget>

class FFindBar;
class FOutputViewer;
class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;

/** A viewer of an output file with a line about the file, a search, and the reason why a place is shown. */
class MERIX_EXPORT FOutputDocument : public QWidget {
    Q_OBJECT

 public:
    explicit FOutputDocument(const QString& path);

    FOutputViewer& viewer() { return *mpViewer; }
    /** Marks a place, counted from 1. A place with a reason is a suspicious one; the reason is shown above the text. */
    void showPlace(qint64 line, qint64 column, qint64 length, const QString& reason);

 private:
    QLayout* makeStatusRow();
    void addShortcuts();
    void goToLine();
    void updateStatus();

    FOutputViewer* mpViewer;
    FFindBar* mpFind;
    QFrame* mpStrip;
    QLabel* mpReason;
    QLabel* mpStatus;
    QLineEdit* mpLine;
    QCheckBox* mpTail;
    QString mFault;
};
