#include "host/gui/panels/FTableModel.h"

#include "host/core/FNumberText.h"
#include "host/gui/base/FFixedFont.h"
#include "host/gui/base/FSeverityLook.h"
#include "host/gui/base/FStateColor.h"
#include "host/run/FCsv.h"
#include "host/run/FUtf8.h"
#include "host/run/FValueRemark.h"

#include <cmath>

namespace {

QString placeText(qint64 line, qint64 column) {
    return line <= 0     ? QString()
           : column <= 0 ? QStringLiteral("line %1").arg(line)
                         : QStringLiteral("line %1, column %2").arg(line).arg(column);
}

/** A difference between numbers that were read from texts has no more digits than those. */
QString differenceText(double number, double before) {
    constexpr int digits = 6;
    const double difference = number - before;
    if (!std::isfinite(difference)) {
        return {};
    }
    const QString text = (difference > 0 ? QStringLiteral("+") : QString()) + QString::number(difference, 'g', digits);
    if (difference == 0 || before == 0) {
        return text;
    }
    const double percent = 100 * difference / std::fabs(before);
    return QStringLiteral("%1 (%2%3 %)")
        .arg(text, percent > 0 ? QStringLiteral("+") : QString(), QString::number(percent, 'g', 3));
}

std::string_view textOfPart(const FAverageRows& rows, int part) {
    const auto number = static_cast<std::size_t>(part);
    const qint64 begin = part == 0 ? 0 : rows.rows[number - 1].textEnd;
    return std::string_view(rows.texts)
        .substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(rows.rows[number].textEnd - begin));
}

}  // namespace

void FTableModel::setTable(const FExpr<FTableData>& table, const FExpr<FTableData>& before, const QString& title,
                           FNumberFlags accepted) {
    beginResetModel();
    mTable = table;
    mBefore = before;
    mBeforeTitle = title;
    mAccepted = accepted;
    makeColumns();
    endResetModel();
}

void FTableModel::makeColumns() {
    mColumns = {{Kind::Name, 0, QStringLiteral("Name")}};
    const int count = mTable ? std::max(mTable->getColumnCount(), 1) : 1;
    for (int column = 0; column < count; ++column) {
        const QString name = mTable ? mTable->getColumnName(column) : QString();
        mColumns.push_back({Kind::Value, column,
                            !name.isEmpty() ? name
                            : count == 1    ? QStringLiteral("Value")
                                            : QString::number(column)});
        if (mBefore) {
            mColumns.push_back({Kind::Before, column, mBeforeTitle});
            mColumns.push_back({Kind::Difference, column, QStringLiteral("Difference")});
        }
    }
    mColumns.push_back({Kind::Text, 0, QStringLiteral("In the file")});
    mColumns.push_back({Kind::Place, 0, QStringLiteral("Place")});
    mColumns.push_back({Kind::Remark, 0, QStringLiteral("What is unusual")});
}

double FTableModel::number(int row, int column) const {
    return mTable->getElementAt(row, column);
}

double FTableModel::before(int row, int column) const {
    const QString name = mTable->getRowName(row);
    return mBefore->getElementAt(name.isEmpty() ? row : mBefore->findRow(name), column);
}

FTableModel::Remarkable FTableModel::judge(int row) const {
    if (std::isnan(number(row, 0))) {
        return Remarkable::Missing;
    }
    return mTable->getOrigin(row).flags & ~mAccepted ? Remarkable::Suspicious : Remarkable::No;
}

FNavigator::Place FTableModel::placeOf(const QModelIndex& index) const {
    const QModelIndex top = index.parent().isValid() ? index.parent() : index;
    const FNumberOrigin& origin = mTable->getOrigin(top.row());
    FNavigator::Place place;
    place.file = mTable->getName();
    if (top != index) {
        const FAverageRow& row = origin.rows->rows[static_cast<std::size_t>(index.row())];
        place.line = row.line;
        place.column = row.column;
        place.length = FUtf8::utf16Length(textOfPart(*origin.rows, index.row()));
        return place;
    }
    const bool isOwnLine = origin.lineToShow() == origin.line;
    place.line = std::max<qint64>(origin.lineToShow(), 0);
    place.column = isOwnLine ? std::max<qint64>(origin.column, 0) : 0;
    place.length = isOwnLine ? origin.text.size() : 0;
    if (judge(index.row()) != Remarkable::No) {
        const QString reason = FValueRemark::text(origin, number(index.row(), 0));
        place.reason = QStringLiteral("\"%1\" %2").arg(mTable->getRowName(index.row()), reason);
        if (const QString remedy = FValueRemark::remedy(origin.flags); !remedy.isEmpty()) {
            place.reason += QStringLiteral(". %1.").arg(remedy);
        }
    }
    return place;
}

QString FTableModel::textOf(int row, const Column& column) const {
    const FNumberOrigin& origin = mTable->getOrigin(row);
    switch (column.kind) {
        case Kind::Name:
            return mTable->getRowName(row);
        case Kind::Value:
            return numberText(number(row, column.number));
        case Kind::Before:
            return numberText(before(row, column.number));
        case Kind::Difference:
            return differenceText(number(row, column.number), before(row, column.number));
        case Kind::Text:
            return origin.text;
        case Kind::Place:
            return placeText(origin.lineToShow(), origin.lineToShow() == origin.line ? origin.column : 0);
        case Kind::Remark:
            break;
    }
    const QString reason = FValueRemark::text(origin, number(row, 0));
    return reason.isEmpty() && judge(row) == Remarkable::Missing ? QStringLiteral("isn't a number") : reason;
}

QString FTableModel::partText(int row, int part, Kind kind) const {
    const FAverageRows& rows = *mTable->getOrigin(row).rows;
    const FAverageRow& shown = rows.rows[static_cast<std::size_t>(part)];
    switch (kind) {
        case Kind::Name:
            return QStringLiteral("row %1").arg(part + 1);
        case Kind::Value:
            return numberText(shown.number);
        case Kind::Text:
            return FUtf8::decode(textOfPart(rows, part));
        case Kind::Place:
            return placeText(shown.line, shown.column);
        case Kind::Remark:
            return namesOf(shown.flags).join(QStringLiteral(", "));
        case Kind::Before:
        case Kind::Difference:
            break;
    }
    return {};
}

QVariant FTableModel::lookOf(int row, const Column& column, int role) const {
    const Remarkable remark = judge(row);
    const bool isMissing = remark == Remarkable::Missing;
    switch (role) {
        case Qt::ToolTipRole: {
            const QString remedy = FValueRemark::remedy(mTable->getOrigin(row).flags);
            const QString text = textOf(row, column);
            return remark == Remarkable::No ? mTable->getRowTooltip(row)
                   : remedy.isEmpty()       ? text
                                            : QStringLiteral("%1\n%2").arg(textOf(row, {Kind::Remark}), remedy);
        }
        case Qt::BackgroundRole:
            return remark == Remarkable::No
                       ? QVariant()
                       : FStateColor::backgroundOf(isMissing ? FStateColor::State::Bad : FStateColor::State::Warning);
        case Qt::DecorationRole:
            return remark == Remarkable::No || column.kind != Kind::Remark ? QVariant()
                   : isMissing                                             ? FSeverityLook::errorIcon()
                                                                           : FSeverityLook::warningIcon();
        default:
            return {};
    }
}

QVariant FTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const Column& column = mColumns[static_cast<std::size_t>(index.column())];
    const bool isNumber = column.kind == Kind::Value || column.kind == Kind::Before || column.kind == Kind::Difference;
    switch (role) {
        case Qt::DisplayRole:
            return index.parent().isValid() ? partText(index.parent().row(), index.row(), column.kind)
                                            : textOf(index.row(), column);
        case Qt::TextAlignmentRole:
            return isNumber ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
        case Qt::FontRole:
            return isNumber || column.kind == Kind::Text ? FFixedFont::get() : QVariant();
        default:
            return index.parent().isValid() ? QVariant() : lookOf(index.row(), column, role);
    }
}

QVariant FTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const Column& column = mColumns[static_cast<std::size_t>(section)];
    const bool isNumber = column.kind == Kind::Value || column.kind == Kind::Before || column.kind == Kind::Difference;
    return role == Qt::DisplayRole         ? QVariant(column.title)
           : role == Qt::TextAlignmentRole ? QVariant((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter)
                                           : QVariant();
}

QString FTableModel::toCsv(const QModelIndexList& rows) const {
    QStringList header;
    for (const Column& column : mColumns) {
        header.append(column.title);
    }
    QString text = FCsv::line(header);
    QModelIndexList all = rows;
    for (int row = 0; rows.isEmpty() && row < rowCount(); ++row) {
        all.append(index(row, 0));
    }
    std::sort(all.begin(), all.end());
    for (const QModelIndex& row : qAsConst(all)) {
        QStringList cells;
        for (int column = 0; column < columnCount(); ++column) {
            cells.append(row.siblingAtColumn(column).data().toString());
        }
        text += FCsv::line(cells);
    }
    return text;
}

// The internal id is 0 for a value, else the number of the value, from 1, that a row is below.
QModelIndex FTableModel::index(int row, int column, const QModelIndex& parent) const {
    return hasIndex(row, column, parent)
               ? createIndex(row, column, static_cast<quintptr>(parent.isValid() ? parent.row() + 1 : 0))
               : QModelIndex();
}

QModelIndex FTableModel::parent(const QModelIndex& child) const {
    return child.internalId() == 0 ? QModelIndex()
                                   : createIndex(static_cast<int>(child.internalId()) - 1, 0, quintptr{0});
}

int FTableModel::rowCount(const QModelIndex& parent) const {
    if (!mTable || parent.column() > 0 || (parent.isValid() && parent.internalId() != 0)) {
        return 0;
    }
    const auto& rows = parent.isValid() ? mTable->getOrigin(parent.row()).rows : nullptr;
    return !parent.isValid() ? mTable->getRowCount() : rows ? static_cast<int>(rows->rows.size()) : 0;
}

int FTableModel::columnCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : static_cast<int>(mColumns.size());
}
