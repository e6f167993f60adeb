#pragma once

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"
#include "host/core/FExpr.h"

#include <QStringList>

#include <vector>

class FGenIntResultsFile;
class FGenIntResultsFileValue;

/** Turns the values and separators of a result template into what the search takes. */
namespace FTemplateValues {

using Values = std::vector<const FGenIntResultsFileValue*>;

/** The elements of a list that are values, in the list's order. The list must outlive the result. */
Values among(const std::vector<FExpr<FObject>>& elements);

/** The names of a template's values, in its order. */
QStringList namesOf(const FGenIntResultsFile& file);

FAnchor anchorOf(const FGenIntResultsFileValue& value);

/** The prototype of the value's type; that of FDouble for a value whose class isn't known. */
const FObject* typeOf(const FGenIntResultsFileValue& value);

/** Whether the value is the name of a file to import. */
bool isFileName(const FGenIntResultsFileValue& value);

FSeparatorSettings separatorsOf(const FGenIntResultsFile& file);

/** Describes a value as one without an average. Evaluates nothing. */
FValueDescription describePlace(const FGenIntResultsFileValue& value);

/**
 * Describes a value. Evaluates the number of rows of an average, which may update and read other objects; a number that
 * isn't whole or is below 0, or no number at all, counts as 0 rows.
 */
FValueDescription describe(const FGenIntResultsFileValue& value);

/** Describes values with `describePlace` or `describe`. */
std::vector<FValueDescription> describe(const Values& values,
                                        FValueDescription (*describeOne)(const FGenIntResultsFileValue&) = &describe);

}  // namespace FTemplateValues
