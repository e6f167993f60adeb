#include "genericintegration/io/FValueSearch.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

#include "genericintegration/io/FColumnCursor.h"
#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FRowAverages.h"
#include "genericintegration/io/FSoughtLine.h"

namespace {

std::vector<QString> anchorsOf(const std::vector<FValueDescription>& values) {
    std::vector<QString> anchors;
    anchors.reserve(values.size());
    for (const FValueDescription& value : values)
        anchors.push_back(value.anchor.text);
    return anchors;
}

FByteRange placeOf(const FAnchor& anchor, const FAnchorPlaces& places) {
    return anchor.occurrence == FAnchorOccurrence::First ? places.first : places.last;
}

}  // namespace

FValueSearch::FValueSearch(std::vector<FValueDescription> values, const FSeparatorSettings& separators)
    : mValues(std::move(values)),
      mAnchors(anchorsOf(mValues)),
      mFindNumbers(separators.findNumbers),
      mSeparator(separators.pattern()) {}

QString FValueSearch::patternError() const {
    return mSeparator.isValid() ? QString() : mSeparator.errorString();
}

FFoundValues FValueSearch::find(const FResultText& text) const {
    FFoundValues found;
    found.values.resize(mValues.size());
    const std::vector<FAnchorPlaces> places = mAnchors.findInTrimmed(text);
    std::vector<Reading> readings;
    FRowAverages averages(text, separator());
    for (size_t i = 0; i < mValues.size(); ++i) {
        if (mValues[i].average) {
            averages.add(i, mValues[i].column, mValues[i].averageRows);
            continue;
        }
        const FSoughtLine sought = seekLine(text, mValues[i], places[i]);
        found.values[i].flags = sought.flags;
        if (sought.range)
            readings.push_back({i, *sought.range});
    }
    read(text, readings, found.values);
    averages.read(found.values);
    found.order = order(text, places);
    return found;
}

FSoughtLine FValueSearch::seekLine(const FResultText& text, const FValueDescription& value,
                                   const FAnchorPlaces& places) const {
    const FByteRange anchor = placeOf(value.anchor, places);
    if (anchor.begin >= 0)
        return FSoughtLine::fromAnchor(text, anchor, value.line);
    FSoughtLine sought = FSoughtLine::inText(text, value.line);
    sought.flags.setFlag(FFoundFlag::AnchorMissing, !value.anchor.text.isEmpty());
    return sought;
}

// Values of one line are read together, from its begin to its end.
void FValueSearch::read(const FResultText& text, std::vector<Reading>& readings,
                        std::vector<FFoundValue>& found) const {
    const auto key = [this](const Reading& reading) {
        return std::tuple(reading.line.begin, reading.line.end, mValues[reading.value].column);
    };
    std::sort(readings.begin(), readings.end(),
              [&key](const Reading& left, const Reading& right) { return key(left) < key(right); });
    std::optional<FColumnCursor> cursor;
    for (size_t i = 0; i < readings.size(); ++i) {
        const Reading& reading = readings[i];
        if (i == 0 || !(readings[i - 1].line == reading.line))
            cursor.emplace(text.text(), reading.line, separator());
        FFoundValue& value = found[reading.value];
        const FFoundFlags flags = value.flags;
        value = cursor->seek(mValues[reading.value].column).value(text);
        value.flags |= flags;
    }
}

std::vector<int> FValueSearch::order(const FResultText& text) const {
    return order(text, mAnchors.findInTrimmed(text));
}

std::vector<int> FValueSearch::order(const FResultText& text, const std::vector<FAnchorPlaces>& trimmed) const {
    std::vector<int> numbers(mValues.size());
    std::iota(numbers.begin(), numbers.end(), 0);
    if (text.isEmpty())
        return numbers;
    const std::vector<FAnchorPlaces> places = mAnchors.extendToWhole(text, trimmed);
    const auto key = [&](int number) {
        const FValueDescription& value = mValues[static_cast<size_t>(number)];
        const qint64 position = placeOf(value.anchor, places[static_cast<size_t>(number)]).begin;
        return std::tuple<qint64, int, int, const QString&>(std::max<qint64>(position, 0), value.line, value.column,
                                                            value.name);
    };
    std::stable_sort(numbers.begin(), numbers.end(), [&key](int left, int right) { return key(left) < key(right); });
    return numbers;
}
