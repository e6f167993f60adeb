#pragma once

#include "host/core/FExport.h"

#include <QCompleter>
#include <QStringListModel>

#include <functional>

class FScriptNames;
class QLineEdit;

/**
 * Completes names in a field with script text: after a point the commands of what precedes it, else objects, functions
 * and creators. Ctrl+Space, or typing two characters, opens the list; Enter or Tab takes the chosen name.
 */
class MERIX_EXPORT FScriptCompleter : public QCompleter {
    Q_OBJECT

 public:
    /** @param names  the variables that the text may use; may be empty */
    explicit FScriptCompleter(QLineEdit* field, std::function<const FScriptNames*()> names = {});

    /** The names that are possible at the end of a text. */
    QStringList candidates(const QString& text) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void offer(bool isWanted);
    void take(const QString& name);

    QLineEdit* mpField;
    QStringListModel* mpModel;
    std::function<const FScriptNames*()> mNames;
};
