#include "genericintegration/io/FTemplateValues.h"

#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FString.h"
#include "host/script/FCmdType.h"

#include <limits>

namespace FTemplateValues {
namespace {

quint32 averageRows(const FGenIntResultsFileValue& value) {
    double rows = 0;
    cmdtype::wholeNumber(value.mNumAverageRows, 0, std::numeric_limits<quint32>::max(), rows);
    return static_cast<quint32>(rows);
}

}  // namespace

Values among(const std::vector<FExpr<FObject>>& elements) {
    Values values;
    values.reserve(elements.size());
    for (const FExpr<FObject>& element : elements) {
        if (const auto* value = objectCast<FGenIntResultsFileValue>(element.getObject())) {
            values.push_back(value);
        }
    }
    return values;
}

QStringList namesOf(const FGenIntResultsFile& file) {
    QStringList names;
    for (const FGenIntResultsFileValue* value : among(file.getValues()->getObjects())) {
        names.append(value->mName);
    }
    return names;
}

FAnchor anchorOf(const FGenIntResultsFileValue& value) {
    const bool isFirst = value.mOccurrence.get() == GenIntAnchorOccurrence::First;
    return {value.mAnchor, isFirst ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
}

const FObject* typeOf(const FGenIntResultsFileValue& value) {
    return value.mType ? value.mType : FDouble::null();
}

bool isFileName(const FGenIntResultsFileValue& value) {
    return typeOf(value) == FFileName::null();
}

FSeparatorSettings separatorsOf(const FGenIntResultsFile& file) {
    return {file.getNumberSeparator(), file.getSpacesAndTabsSeparator(), file.getRegExprSeparator()};
}

FValueDescription describePlace(const FGenIntResultsFileValue& value) {
    return {value.mName, value.mLine, value.mColumn, anchorOf(value)};
}

FValueDescription describe(const FGenIntResultsFileValue& value) {
    FValueDescription description = describePlace(value);
    description.average = value.mCalcAverage;
    description.averageRows = value.mCalcAverage ? averageRows(value) : 0;
    return description;
}

std::vector<FValueDescription> describe(const Values& values,
                                        FValueDescription (*describeOne)(const FGenIntResultsFileValue&)) {
    std::vector<FValueDescription> descriptions;
    descriptions.reserve(values.size());
    for (const FGenIntResultsFileValue* value : values) {
        descriptions.push_back(describeOne(*value));
    }
    return descriptions;
}

}  // namespace FTemplateValues
