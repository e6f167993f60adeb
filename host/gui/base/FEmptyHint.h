#pragma once

#include "host/core/FExport.h"

#include <QObject>
#include <QString>

class QAbstractItemView;

/** Says in an item view without rows what belongs there. */
class MERIX_EXPORT FEmptyHint : public QObject {
 public:
    FEmptyHint(QAbstractItemView* view, const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QAbstractItemView* mpView;
    QString mText;
};
