#include "genericintegration/templates/FGenIntResultsFileValue.h"

#include "host/core/FBool.h"
#include "host/core/FNull.h"
#include "host/core/FObjectList.h"
#include "host/core/FQuotedText.h"
#include "host/core/FString.h"
#include "host/script/FSavedTextReader.h"

#include <algorithm>
#include <cmath>
#include <utility>

FClassData FGenIntResultsFileValue::mClass("FGenIntResultsFileValue", &FBasicType::mClass, nullptr,
                                           &FGenIntResultsFileValue::fields);

namespace {

constexpr std::size_t fieldsWithoutAverage = 7;

QString bareQuoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/** Whether an element of a list may be evaluated: a saved text reads no files. */
bool isReadable(const FExpr<FObject>& element) {
    return !FSavedTextReader::isReading() || element.canSafelyBeUpdated(false);
}

/** The element of a list as a value; null if there is none. */
const FBasicType* valueOf(const FExpr<FObject>& element) {
    FObject* object = isReadable(element) ? element.getObject() : nullptr;
    auto* basic = object ? dynamic_cast<const FBasicType*>(object->getValueObject()) : nullptr;
    return basic == FNull::null() ? nullptr : basic;
}

void readText(const FExpr<FObject>& element, QString& text) {
    if (const FBasicType* value = valueOf(element)) {
        text = value->toString();
    }
}

/** An element that isn't a whole number, as script text; empty if it is one, or can't be read. */
QString oddPlaceIn(const FExpr<FObject>& element) {
    if (isReadable(element) && element.getObject() == FNull::null()) {
        return QStringLiteral("NULL");
    }
    const FBasicType* value = valueOf(element);
    const auto* number = dynamic_cast<const FDouble*>(value);
    const bool isFlag = dynamic_cast<const FBool*>(value);
    if (!value || isFlag || (number && number->toDouble() == number->toInt())) {
        return {};
    }
    return number ? number->toString() : quoteText(value->toString());
}

bool isQuoted(const QString& text) {
    return text.startsWith(u'"');
}

/** The number that is taken for such a text. */
int numberTaken(const QString& given) {
    return isQuoted(given) ? FString(unquoteText(given).value_or(QString())).toInt()
                           : FDouble(given.toDouble()).toInt();
}

QString oddPlaceText(const QString& given, const char* what) {
    return given.isEmpty()
               ? QString()
               : QStringLiteral("has the %1 %2, which isn't a %3number, and takes %4")
                     .arg(QLatin1String(what), given, isQuoted(given) ? QString() : QStringLiteral("whole "),
                          QString::number(numberTaken(given)));
}

/** Says that a text isn't the flag of an average; empty if the flag is a number, a truth value or missing. */
QString faultOfAverage(const std::vector<FExpr<FObject>>& elements) {
    const FBasicType* flag = elements.size() > fieldsWithoutAverage ? valueOf(elements[fieldsWithoutAverage]) : nullptr;
    if (!dynamic_cast<const FString*>(flag)) {
        return {};
    }
    return QStringLiteral("has the text %1 for the average, and takes %2; write true or false")
        .arg(quoteText(flag->toString()), flag->toDouble() != 0 ? QStringLiteral("true") : QStringLiteral("false"));
}

QString faultOfType(const QString& name) {
    const FObject* type = FObject::getPrototype(name);
    const bool isOfFiles = type && (type->isTypeOf(FDouble::null()) || type->isTypeOf(FString::null()));
    // A saved text has what was reported when it was set.
    if (isOfFiles || (type && FSavedTextReader::isReading())) {
        return {};
    }
    return type ? QStringLiteral(
                      "has the type \"%1\", which no file holds, and is read as a text; write \"FDouble\", "
                      "\"FString\" or \"FFileName\"")
                      .arg(name)
                : QStringLiteral("has the type \"%1\", which isn't known, and is read as a number").arg(name);
}

/** Says that an average is over no number of rows that there can be; an expression that reads files is for the check.
 */
QString faultOfRows(const std::vector<FExpr<FObject>>& elements) {
    constexpr std::size_t rowsField = fieldsWithoutAverage + 1;
    const bool isKnown = elements.size() > rowsField && elements[rowsField].canSafelyBeUpdated(false);
    const FBasicType* flag = isKnown ? valueOf(elements[fieldsWithoutAverage]) : nullptr;
    const FBasicType* rows = isKnown ? valueOf(elements[rowsField]) : nullptr;
    const double number = rows ? rows->toDouble() : 1;
    const bool isWhole = std::isfinite(number) && number == std::floor(number);
    if (!flag || flag->toDouble() == 0 || (isWhole && number >= 1)) {
        return {};
    }
    return QStringLiteral("has an average over %1 rows, and gives no number; write a whole number from 1")
        .arg(rows->toString());
}

void readInt(const FExpr<FObject>& element, int& number) {
    if (const FBasicType* value = valueOf(element)) {
        number = value->toInt();
    }
}

}  // namespace

FGenIntResultsFileValue::FGenIntResultsFileValue(const QString& name, int line, int column, const QString& anchor,
                                                 const QString& occurrence, const FObject* type,
                                                 const QString& importType, bool calcAverage,
                                                 const FExpr<FUnsigned>& numAverageRows)
    : mName(name),
      mLine(line),
      mColumn(column),
      mAnchor(anchor),
      mType(type),
      mImportType(importType),
      mCalcAverage(calcAverage) {
    mOccurrence.setValue(occurrence);
    setNumAverageRows(numAverageRows);
}

FGenIntResultsFileValue::FGenIntResultsFileValue(const FGenIntResultsFileValue& other)
    : FClass(other),
      mName(other.mName),
      mLine(other.mLine),
      mColumn(other.mColumn),
      mAnchor(other.mAnchor),
      mOccurrence(other.mOccurrence),
      mType(other.mType),
      mImportType(other.mImportType),
      mCalcAverage(other.mCalcAverage),
      mGivenLine(other.mGivenLine),
      mGivenColumn(other.mGivenColumn) {
    setNumAverageRows(other.mNumAverageRows);
}

FGenIntResultsFileValue& FGenIntResultsFileValue::operator=(const FGenIntResultsFileValue& other) {
    if (this != &other) {
        FBasicType::operator=(other);
        mName = other.mName;
        mLine = other.mLine;
        mColumn = other.mColumn;
        mAnchor = other.mAnchor;
        mOccurrence = other.mOccurrence;
        mType = other.mType;
        mImportType = other.mImportType;
        mCalcAverage = other.mCalcAverage;
        mGivenLine = other.mGivenLine;
        mGivenColumn = other.mGivenColumn;
        setNumAverageRows(other.mNumAverageRows);
    }
    return *this;
}

std::vector<std::unique_ptr<FStateField>> FGenIntResultsFileValue::fields() {
    using Self = FGenIntResultsFileValue;
    return FStateFields<Self>()
        .member(&Self::mName)
        .member(&Self::mLine)
        .member(&Self::mColumn)
        .member(&Self::mAnchor)
        .member(&Self::mOccurrence)
        .member(&Self::mType)
        .member(&Self::mImportType)
        .member(&Self::mCalcAverage)
        .linked(&Self::mNumAverageRows)
        .member(&Self::mGivenLine)
        .member(&Self::mGivenColumn)
        .take();
}

void FGenIntResultsFileValue::setNumAverageRows(const FExpr<FUnsigned>& rows) {
    // The handle given may be the member itself.
    const FExpr<FUnsigned> taken = rows;
    mNumAverageRows.unregisterClient(this);
    mNumAverageRows = taken;
    mNumAverageRows.registerClient(this);
}

QString FGenIntResultsFileValue::faultOf(const FExpr<FObject>& value) {
    FObject* object = value.getObject();
    const FObjectList* list = object ? object->castToObjectList() : nullptr;
    if (!list) {
        return QStringLiteral("is no list, and stays blank");
    }
    const std::vector<FExpr<FObject>>& elements = list->getObjects();
    if (elements.size() < fieldsWithoutAverage) {
        return QStringLiteral("has %1 elements instead of 7 or 9, and stays blank").arg(elements.size());
    }
    const auto unreadable =
        std::find_if_not(elements.begin(), elements.begin() + std::min<std::ptrdiff_t>(8, list->count()), &isReadable);
    if (unreadable != elements.begin() + std::min<std::ptrdiff_t>(8, list->count())) {
        return QStringLiteral("has the element %1, which reads files, and takes the default for it")
            .arg(unreadable->toString());
    }
    // A saved text keeps it on purpose, for the check.
    for (const auto& [element, what] : {std::pair(elements[1], "line"), std::pair(elements[2], "column")}) {
        const QString fault = oddPlaceText(oddPlaceIn(element), what);
        if (!fault.isEmpty() && !FSavedTextReader::isReading()) {
            return fault;
        }
    }
    QString occurrence = FEnum<GenIntAnchorOccurrence>().toString();
    readText(elements[4], occurrence);
    if (!FEnum<GenIntAnchorOccurrence>().FEnumBase::setValue(occurrence)) {
        return QStringLiteral("has the occurrence \"%1\", which is neither First nor Last, and takes the last one")
            .arg(occurrence);
    }
    if (const QString fault = faultOfAverage(elements); !fault.isEmpty()) {
        return fault;
    }
    if (const QString fault = faultOfRows(elements); !fault.isEmpty() && !FSavedTextReader::isReading()) {
        return fault;
    }
    QString type;
    readText(elements[5], type);
    return type.isEmpty() ? QString() : faultOfType(type);
}

void FGenIntResultsFileValue::setPrimitiveValue(const FExpr<FObject>& value) {
    FObject* object = value.getObject();
    const FObjectList* list = object ? object->castToObjectList() : nullptr;
    if (!list || list->getObjects().size() < fieldsWithoutAverage) {
        return;
    }
    const std::vector<FExpr<FObject>>& elements = list->getObjects();
    readText(elements[0], mName);
    readInt(elements[1], mLine);
    readInt(elements[2], mColumn);
    mGivenLine = oddPlaceIn(elements[1]);
    mGivenColumn = oddPlaceIn(elements[2]);
    readText(elements[3], mAnchor);
    QString occurrence;
    readText(elements[4], occurrence);
    mOccurrence.setValue(occurrence);
    QString type;
    readText(elements[5], type);
    mType = type.isEmpty() ? mType : FObject::getPrototype(type);
    readText(elements[6], mImportType);
    if (elements.size() > fieldsWithoutAverage) {
        setAverage(elements);
    }
}

void FGenIntResultsFileValue::setAverage(const std::vector<FExpr<FObject>>& elements) {
    if (const FBasicType* flag = valueOf(elements[7])) {
        mCalcAverage = flag->toDouble() != 0;
    }
    if (elements.size() > 8) {
        const FExpr<FUnsigned> rows(elements[8]);
        if (!rows.isEmpty()) {
            setNumAverageRows(rows);
        }
    }
}

QString FGenIntResultsFileValue::oddLine() const {
    return numberTaken(mGivenLine) == mLine ? mGivenLine : QString();
}

QString FGenIntResultsFileValue::oddColumn() const {
    return numberTaken(mGivenColumn) == mColumn ? mGivenColumn : QString();
}

QString FGenIntResultsFileValue::placeFault() const {
    const QString ofLine = oddPlaceText(oddLine(), "line");
    return ofLine.isEmpty() ? oddPlaceText(oddColumn(), "column") : ofLine;
}

QString FGenIntResultsFileValue::quotedNameIn(const FExpr<FObject>& value) {
    FObject* object = value.getObject();
    const FObjectList* list = object ? object->castToObjectList() : nullptr;
    const auto* name = list && list->count() > 0 ? dynamic_cast<const FString*>(valueOf(list->at(0))) : nullptr;
    return name ? QStringLiteral(", \"%1\",").arg(name->toString()) : QString();
}

QString FGenIntResultsFileValue::record(QString (*textOf)(const QString&), const Texts& own) const {
    const QStringList texts{textOf(mName),
                            own.line,
                            own.column,
                            textOf(mAnchor),
                            own.occurrence,
                            textOf(own.type ? own.type->getClass() : QString()),
                            textOf(mImportType),
                            mCalcAverage ? QStringLiteral("1") : QStringLiteral("0"),
                            mNumAverageRows.toHistoryString()};
    return QLatin1Char('[') + texts.join(QLatin1Char(',')) + QLatin1Char(']');
}

QString FGenIntResultsFileValue::toString() const {
    return record(&bareQuoted, {QString::number(mLine), QString::number(mColumn), mOccurrence.getStringValue(), mType});
}

QString FGenIntResultsFileValue::toHistoryString() const {
    // What isn't a number stays as it was given, so that the check reports it after the next opening, too.
    const QString line = oddLine().isEmpty() ? QString::number(mLine) : oddLine();
    const QString column = oddColumn().isEmpty() ? QString::number(mColumn) : oddColumn();
    // What has no type is read as a number; an empty text would leave the type to the reader of the record.
    const FObject* type = mType ? mType : FDouble::null();
    return record(&quoteText, {line, column, quoteText(mOccurrence.getStringValue()), type});
}
