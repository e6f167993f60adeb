#include "host/gui/panels/FLogModel.h"

#include "host/core/FChanges.h"
#include "host/gui/base/FSeverityLook.h"

namespace {

constexpr int delay = 40;  // milliseconds

}  // namespace

QString FLogModel::textOf(const FLogMsg& message) {
    FLogMsg plain = message;
    plain.place.clear();
    plain.source.clear();
    const QString line = plain.toLine();
    return line.mid(line.indexOf(QLatin1Char(' ')) + 1);
}

FLogModel::FLogModel() {
    mTimer.setSingleShot(true);
    mTimer.setInterval(delay);
    connect(&mTimer, &QTimer::timeout, this, &FLogModel::takeNew);
    connect(FChanges::instance(), &FChanges::messageLogged, this, &FLogModel::add);
}

void FLogModel::add(const FLogMsg& message) {
    // Without an event loop in between, a loop of a script could log without end.
    if (mNew.size() >= static_cast<std::size_t>(most)) {
        mNew.erase(mNew.begin(), mNew.begin() + most / 2);
    }
    mNew.push_back(message);
    if (!mTimer.isActive()) {
        mTimer.start();
    }
}

void FLogModel::takeNew() {
    const int surplus = rowCount() + static_cast<int>(mNew.size()) - most;
    if (surplus > 0 && rowCount() > 0) {
        const int dropped = std::min(surplus, rowCount());
        beginRemoveRows({}, 0, dropped - 1);
        mMessages.erase(mMessages.begin(), mMessages.begin() + dropped);
        endRemoveRows();
    }
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(mNew.size()) - 1);
    mMessages.insert(mMessages.end(), mNew.begin(), mNew.end());
    mNew.clear();
    endInsertRows();
}

void FLogModel::clear() {
    beginResetModel();
    mMessages.clear();
    mNew.clear();
    endResetModel();
}

int FLogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mMessages.size());
}

int FLogModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant FLogModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const FLogMsg& message = this->message(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return index.column() == kindColumn     ? FSeverityLook::of(message.kind).word
                   : index.column() == sourceColumn ? (message.place.isEmpty() ? message.source : message.place)
                                                    : textOf(message).simplified();
        case Qt::ToolTipRole:
            return message.toLine();
        case Qt::DecorationRole:
            return index.column() == kindColumn ? FSeverityLook::of(message.kind).icon : QVariant();
        case Qt::ForegroundRole:
            return index.column() == kindColumn ? FSeverityLook::of(message.kind).color : QVariant();
        default:
            return {};
    }
}

QVariant FLogModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const char* const titles[] = {"Kind", "Source", "Message"};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole && section < columns
               ? QString::fromLatin1(titles[section])
               : QAbstractTableModel::headerData(section, orientation, role);
}
