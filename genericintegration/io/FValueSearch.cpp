#include "genericintegration/io/FValueSearch.h"

#include "genericintegration/io/FColumnCursor.h"
#include "genericintegration/io/FRowAverages.h"
#include "genericintegration/io/FSeparatorMatches.h"
#include "genericintegration/io/FSuspicion.h"
#include "host/run/FResultText.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

namespace {

std::vector<QString> anchorsOf(const std::vector<FValueDescription>& values) {
    std::vector<QString> anchors;
    anchors.reserve(values.size());
    for (const FValueDescription& value : values) {
        anchors.push_back(value.anchor.text);
    }
    return anchors;
}

/** The indices of the values, sorted by line, column and name; equal ones keep their order. */
std::vector<int> sorted(const std::vector<FValueDescription>& values) {
    std::vector<int> numbers(values.size());
    std::iota(numbers.begin(), numbers.end(), 0);
    const auto key = [&values](int number) {
        const FValueDescription& value = values[static_cast<size_t>(number)];
        return std::tie(value.line, value.column, value.name);
    };
    std::stable_sort(numbers.begin(), numbers.end(), [&key](int left, int right) { return key(left) < key(right); });
    return numbers;
}

FByteRange placeOf(const FAnchor& anchor, const FAnchorPlaces& places) {
    return anchor.occurrence == FAnchorOccurrence::First ? places.first : places.last;
}

}  // namespace

FValueSearch::FValueSearch(std::vector<FValueDescription> values, const FSeparatorSettings& separators)
    : mValues(std::move(values)),
      mSorted(sorted(mValues)),
      mAnchors(anchorsOf(mValues)),
      mSeparators(separators),
      mSeparator(separators.findNumbers ? nullptr : FSeparator::of(separators.expression())) {}

FFoundValues FValueSearch::find(const FResultText& text) const {
    return find(text, mAnchors.findInTrimmed(text));
}

FFoundValues FValueSearch::find(const FResultText& text, const std::vector<FAnchorPlaces>& places) const {
    FFoundValues found;
    found.values.resize(mValues.size());
    FSeparatorMatches::startText();
    std::vector<Reading> readings;
    readings.reserve(mValues.size());
    LinesInText lines;
    FRowAverages averages(text, separator());
    for (size_t i = 0; i < mValues.size(); ++i) {
        if (mValues[i].average) {
            averages.add(i, mValues[i].column, mValues[i].averageRows);
            continue;
        }
        const FSoughtLine sought = seekLine(text, mValues[i], places[i], lines);
        found.values[i].flags = sought.flags;
        if (sought.range) {
            readings.push_back({*sought.range, mValues[i].column, i});
        }
    }
    read(text, readings, found.values);
    averages.read(found.values);
    notePlaces(text, places, found.values);
    noteText(text, found.values);
    found.order = order(text, places);
    return found;
}

// The line of an anchor follows from that of its value, in most cases, which saves a search for each value.
void FValueSearch::notePlaces(const FResultText& text, const std::vector<FAnchorPlaces>& places,
                              std::vector<FFoundValue>& found) const {
    for (size_t i = 0; i < mValues.size(); ++i) {
        const FAnchor& sought = mValues[i].anchor;
        const FByteRange anchor = placeOf(sought, places[i]);
        if (mValues[i].average || sought.text.isEmpty() || anchor.begin < 0) {
            continue;
        }
        FFoundValue& value = found[i];
        const qint64 lineBegin = text.index().lineBegin(anchor.begin);
        const bool follows = value.line > 0 && !value.flags.testFlag(FFoundFlag::LineBeyondEnd) &&
                             (mValues[i].line >= 0 || lineBegin > 0) && !sought.text.contains(QLatin1Char('\n'));
        value.anchorLine = follows ? value.line - mValues[i].line : text.index().lineAt(anchor.begin) + 1;
        value.anchorColumn = text.index().utf16At(anchor.begin) - text.index().utf16At(lineBegin) + 1;
    }
}

void FValueSearch::noteText(const FResultText& text, std::vector<FFoundValue>& found) const {
    FFoundFlags flags = FSuspicion::ofFile(text);
    const QString error = patternError();
    flags.setFlag(FFoundFlag::SeparatorInvalid, !error.isEmpty());
    for (FFoundValue& value : found) {
        value.flags |= flags;
        value.flags.setFlag(FFoundFlag::NotANumber,
                            value.flags.testFlag(FFoundFlag::NotANumber) || (std::isnan(value.number) && !value.flags));
        value.oddity = error.isEmpty() ? value.oddity : error;
    }
}

FSoughtLine FValueSearch::seekLine(const FResultText& text, const FValueDescription& value, const FAnchorPlaces& places,
                                   LinesInText& lines) const {
    const FByteRange anchor = placeOf(value.anchor, places);
    if (anchor.begin >= 0) {
        return FSoughtLine::fromAnchor(text, anchor, value.line);
    }
    auto line = lines.find(value.line);
    if (line == lines.end()) {
        line = lines.emplace(value.line, FSoughtLine::inText(text, value.line)).first;
    }
    FSoughtLine sought = line->second;
    sought.flags.setFlag(FFoundFlag::AnchorMissing, !value.anchor.text.isEmpty());
    return sought;
}

// Reads the values of one line together, from its start to its end.
void FValueSearch::read(const FResultText& text, std::vector<Reading>& readings,
                        std::vector<FFoundValue>& found) const {
    const auto key = [](const Reading& reading) {
        return std::tie(reading.line.begin, reading.line.end, reading.column);
    };
    std::sort(readings.begin(), readings.end(),
              [&key](const Reading& left, const Reading& right) { return key(left) < key(right); });
    std::optional<FColumnCursor> cursor;
    qint64 line = 0;
    qint64 lineBegin = 0;
    FFoundFlags lineFlags;
    for (size_t i = 0; i < readings.size(); ++i) {
        const Reading& reading = readings[i];
        if (i == 0 || !(readings[i - 1].line == reading.line)) {
            cursor.emplace(text.text(), reading.line, separator());
            line = text.index().lineAt(reading.line.begin);
            lineBegin = text.index().lineBegin(reading.line.begin);
            lineFlags = FSuspicion::ofLine(reading.line.of(text.text()));
        }
        FFoundValue& value = found[reading.value];
        cursor->seek(reading.column).fill(value, text, line, lineBegin);
        value.flags |= lineFlags;
    }
}

std::vector<int> FValueSearch::order(const FResultText& text) const {
    return order(text, mAnchors.findInTrimmed(text));
}

std::vector<int> FValueSearch::order(const FResultText& text, const std::vector<FAnchorPlaces>& trimmed) const {
    std::vector<int> numbers(mValues.size());
    std::iota(numbers.begin(), numbers.end(), 0);
    if (text.isEmpty()) {
        return numbers;
    }
    const std::vector<FAnchorPlaces> places = mAnchors.extendToWhole(text, trimmed);
    std::vector<std::pair<qint64, size_t>> ranks;  // by the anchor's place, then as sorted
    ranks.reserve(mSorted.size());
    for (size_t rank = 0; rank < mSorted.size(); ++rank) {
        const size_t value = static_cast<size_t>(mSorted[rank]);
        ranks.emplace_back(std::max<qint64>(placeOf(mValues[value].anchor, places[value]).begin, 0), rank);
    }
    std::sort(ranks.begin(), ranks.end());
    std::transform(ranks.begin(), ranks.end(), numbers.begin(),
                   [this](const auto& ranked) { return mSorted[ranked.second]; });
    return numbers;
}
