#pragma once

#include "host/core/FExport.h"
#include "host/core/FLogMsg.h"

#include <QAbstractTableModel>
#include <QTimer>

#include <deque>
#include <vector>

/** The last messages of the program. Those that come in quick succession are added together. */
class MERIX_EXPORT FLogModel : public QAbstractTableModel {
    Q_OBJECT

 public:
    /** Messages beyond that number push out the oldest. */
    static constexpr int most = 20000;
    enum Column { kindColumn, sourceColumn, textColumn, columns };

    FLogModel();

    /** What happened and what follows, without kind and place. */
    static QString textOf(const FLogMsg& message);
    const FLogMsg& message(int row) const { return mMessages[static_cast<std::size_t>(row)]; }
    void clear();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
    void add(const FLogMsg& message);
    void takeNew();

    std::deque<FLogMsg> mMessages;
    std::vector<FLogMsg> mNew;
    QTimer mTimer;
};
