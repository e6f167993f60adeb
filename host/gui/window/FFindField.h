#pragma once

#include "host/core/FExport.h"

#include <QLineEdit>

#include <functional>
#include <vector>

class FMainWindow;
class QCompleter;
class QStandardItemModel;

/** Finds objects, entries, actions and commands by a part of their name, and shows or executes what is chosen. */
class MERIX_EXPORT FFindField : public QLineEdit {
    Q_OBJECT

 public:
    explicit FFindField(FMainWindow& window);

    /** Takes the focus; what can be found is collected now. */
    void start();

    bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void collect();
    void add(const QIcon& icon, const QString& name, const QString& kind, std::function<void()> choose);
    void addObjects();
    void addEntries();
    void addActions();
    void addCommands();
    void choose(const QModelIndex& index);

    FMainWindow& mWindow;
    QStandardItemModel* mpModel;
    QCompleter* mpCompleter;
    std::vector<std::function<void()>> mChoices;
};
