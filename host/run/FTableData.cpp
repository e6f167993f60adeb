#include "host/run/FTableData.h"

#include "host/core/FManaged.h"
#include "host/core/FNumberText.h"
#include "host/core/FObjectManager.h"
#include "host/core/FQuotedText.h"
#include "host/run/FCsv.h"
#include "host/run/FTableCommands.h"

#include <algorithm>
#include <limits>

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

QHash<QString, int> firstOfEach(const QStringList& headers) {
    QHash<QString, int> places;
    places.reserve(headers.size());
    for (int i = headers.size() - 1; i >= 0; --i) {
        places.insert(headers[i], i);
    }
    return places;
}

}  // namespace

FClassData FTableData::mClass("FTableData", &FObject::mClass, &FTableCommands::declare);

FTableData::FTableData(const QString& name, unsigned int rows, unsigned int columns) : mName(name) {
    setData(Rows(static_cast<int>(rows), QVector<double>(static_cast<int>(columns), notANumber)));
}

void FTableData::setOwner(const FManaged* results) {
    mOwnerId = results ? results->getDbId() : 0;
}

const FManaged* FTableData::getOwner() const {
    return mOwnerId > 0 ? FObjectManager::instance()->find(mOwnerId) : nullptr;
}

QString FTableData::getKeptText(QString& fault) const {
    const FManaged* results = getOwner();
    if (!results) {
        fault = QStringLiteral("the table belongs to no results of the project");
        return {};
    }
    const QString text = results->getKeptText(fault);
    const QString owner = text.isEmpty() ? results->getName() : text;
    return fault.isEmpty() ? owner + QStringLiteral(".getTable(") + quoteText(mName) + QLatin1Char(')') : QString();
}

void FTableData::setData(const Rows& rows) {
    mRows = rows;
    mColumnCount = 0;
    for (const QVector<double>& row : rows) {
        mColumnCount = std::max(mColumnCount, row.size());
    }
}

void FTableData::setAllVerticalHeaders(const QStringList& headers) {
    mRowHeaders = headers;
    mRowOfHeader = firstOfEach(headers);
}

void FTableData::setAllHorizontalHeaders(const QStringList& headers) {
    mColumnOfHeader = firstOfEach(headers);
}

double FTableData::getElementAt(int row, int column, bool* found) const {
    const bool exists = row >= 0 && row < mRows.size() && column >= 0 && column < mRows[row].size();
    if (found) {
        *found = exists;
    }
    return exists ? mRows[row][column] : notANumber;
}

double FTableData::getElementAt(const QString& rowHeader, int column) const {
    return getElementAt(mRowOfHeader.value(rowHeader, -1), column);
}

double FTableData::getElementAt(int row, const QString& columnHeader) const {
    return getElementAt(row, mColumnOfHeader.value(columnHeader, -1));
}

double FTableData::getElementAt(const QString& rowHeader, const QString& columnHeader) const {
    return getElementAt(mRowOfHeader.value(rowHeader, -1), columnHeader);
}

double FTableData::getLastElementOfRow(int row) const {
    return getElementAt(row, mRows.value(row).size() - 1);
}

double FTableData::getLastElementOfColumn(int column) const {
    return getElementAt(mRows.size() - 1, column);
}

double FTableData::getAverageOfLastRows(int rows, int column) const {
    const int used = std::min(rows, mRows.size());
    if (used <= 0) {
        return notANumber;
    }
    double sum = 0;
    for (int row = mRows.size() - used; row < mRows.size(); ++row) {
        sum += getElementAt(row, column);
    }
    return sum / used;
}

const FNumberOrigin& FTableData::getOrigin(int row) const {
    static const FNumberOrigin unknown;
    return row >= 0 && row < mOrigins.size() ? mOrigins[row] : unknown;
}

QVector<double> FTableData::getColumn(int column) const {
    QVector<double> numbers;
    numbers.reserve(mRows.size());
    for (int row = 0; row < mRows.size(); ++row) {
        numbers.append(getElementAt(row, column));
    }
    return numbers;
}

QString FTableData::toCsv() const {
    const bool hasNames = !mRowHeaders.isEmpty();
    QStringList header;
    if (hasNames) {
        header.append(QStringLiteral("name"));
    }
    for (int column = 0; column < mColumnCount; ++column) {
        const QString name = getColumnName(column);
        header.append(!name.isEmpty() ? name : mColumnCount == 1 ? QStringLiteral("value") : QString::number(column));
    }
    QString text = FCsv::line(header);
    for (int row = 0; row < mRows.size(); ++row) {
        QStringList fields = hasNames ? QStringList(getRowName(row)) : QStringList();
        for (int column = 0; column < mColumnCount; ++column) {
            fields.append(column < mRows[row].size() ? numberText(mRows[row][column]) : QString());
        }
        text += FCsv::line(fields);
    }
    return text;
}

int FTableData::rowNumber(double row) {
    const bool fits = row > -1 && row < std::numeric_limits<int>::max();
    return fits ? static_cast<int>(row) : -1;
}
