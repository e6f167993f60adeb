#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"

#include <QWidget>

class FMainWindow;
class QLabel;
class QListWidget;

/** What the window shows without a project: ways to start, and the projects opened last. */
class MERIX_EXPORT FStartPage : public QWidget {
    Q_OBJECT

 public:
    explicit FStartPage(FMainWindow& window);

    /** Reads the list of recent projects, and of work that was never saved, again. */
    void refresh();

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void openRecent();
    void setColors();

    FMainWindow& mWindow;
    QListWidget* mpRecent;
    QList<QLabel*> mSecondary;
    FQueuedCall mOpenRecent{[this] { openRecent(); }};
};
