#pragma once

#include "host/core/FExport.h"

#include <QFrame>

#include <functional>

class QLabel;
class QToolButton;

/** A strip for what the user should know but needn't answer: shows the last notice until it is closed. */
class MERIX_EXPORT FNoticeBar : public QFrame {
    Q_OBJECT

 public:
    explicit FNoticeBar(QWidget* parent);

    /** @param remedy  text of a link that does something about it; empty for none */
    void showNotice(const QString& text, const QString& remedy = QString(), std::function<void()> mend = {});
    QString text() const;

 private:
    QLabel* mpSign;
    QLabel* mpText;
    QToolButton* mpClose;
    std::function<void()> mMend;
};
