#include "genericintegration/marking/FColumnOrigin.h"

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/marking/FPlaceProposal.h"
#include "genericintegration/marking/FPointedNumber.h"
#include "genericintegration/marking/FResultSample.h"

namespace FColumnOrigin {
namespace {

/** Place in the document of the number that a value reads. */
std::optional<int> placeOf(const FResultSample& sample, const FSeparatorSettings& separators,
                           const FValueDescription& value) {
    const FFoundValue found = sample.read(value, separators);
    return found.column > 0 ? std::optional(sample.rangeOf(found.line, found.column, 1).begin) : std::nullopt;
}

}  // namespace

std::optional<int> fromLine(const FResultSample& sample, const FSeparatorSettings& separators,
                            const FValueDescription& value) {
    const std::optional<int> place = placeOf(sample, separators, value);
    const auto number = place ? FPointedNumber::at(sample, separators, *place) : std::nullopt;
    const int column = number ? number->columnFrom(0) : -1;
    return column >= 0 ? std::optional(column) : std::nullopt;
}

std::optional<int> fromAnchor(const FResultSample& sample, const FSeparatorSettings& separators,
                              const FValueDescription& value) {
    const auto anchor = value.line == 0 && !value.anchor.text.isEmpty() ? sample.find(value.anchor) : std::nullopt;
    if (!anchor) {
        return {};
    }
    FValueDescription inLine;
    inLine.line = static_cast<int>(sample.text().index().lineAt(sample.offsetAt(anchor->begin)));
    inLine.column = value.column;
    const std::optional<int> place = placeOf(sample, separators, inLine);
    const auto counted = place ? FPlaceProposal::from(sample, separators, *place, *anchor) : std::nullopt;
    return counted && counted->value.line == 0 ? std::optional(counted->value.column) : std::nullopt;
}

}  // namespace FColumnOrigin
