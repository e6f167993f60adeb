#pragma once

#include "host/core/FExport.h"

#include <QFrame>
#include <QTimer>

#include <functional>

class QLabel;
class QToolButton;

/**
 * A strip for what the user should know but needn't answer: shows the last notice until it is closed, or no longer
 * holds.
 */
class MERIX_EXPORT FNoticeBar : public QFrame {
    Q_OBJECT

 public:
    struct Notice {
        QString text;
        std::function<bool()> holds{};  //!< whether it is still true; null for what stays true
        QString remedy{};               //!< text of a link that does something about it; empty for none
        std::function<void()> mend{};
    };

    explicit FNoticeBar(QWidget* parent);

    void showNotice(const Notice& notice);
    QString text() const;

 private:
    QLabel* mpSign;
    QLabel* mpText;
    QToolButton* mpClose;
    Notice mNotice;
    QTimer mCheck;
};
