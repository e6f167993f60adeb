#include "genericintegration/io/FValueSearch.h"

#include <algorithm>
#include <compare>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

#include "genericintegration/io/FColumnCursor.h"
#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FRowAverages.h"

namespace {

std::vector<QString> anchorsOf(const std::vector<FValueDescription>& values) {
    std::vector<QString> anchors;
    anchors.reserve(values.size());
    for (const FValueDescription& value : values)
        anchors.push_back(value.anchor.text);
    return anchors;
}

/// The first four UTF-16 units of a name, which order most names.
quint64 beginOf(const QString& name) {
    quint64 begin = 0;
    for (int i = 0; i < 4; ++i)
        begin = begin << 16 | (i < name.size() ? name.at(i).unicode() : 0);
    return begin;
}

/// Where a value stands in a table.
struct Rank {
    qint64 position;
    int line;
    int column;
    quint64 nameBegin;
    const QString* name;

    std::strong_ordering operator<=>(const Rank& other) const {
        if (position != other.position)
            return position <=> other.position;
        if (line != other.line)
            return line <=> other.line;
        if (column != other.column)
            return column <=> other.column;
        return nameBegin != other.nameBegin ? nameBegin <=> other.nameBegin : name->compare(*other.name) <=> 0;
    }
};

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
        if (sought.range)
            readings.push_back({i, *sought.range});
    }
    read(text, readings, found.values);
    averages.read(found.values);
    found.order = order(text, places);
    return found;
}

FSoughtLine FValueSearch::seekLine(const FResultText& text, const FValueDescription& value, const FAnchorPlaces& places,
                                   LinesInText& lines) const {
    const FByteRange anchor = placeOf(value.anchor, places);
    if (anchor.begin >= 0)
        return FSoughtLine::fromAnchor(text, anchor, value.line);
    auto line = lines.find(value.line);
    if (line == lines.end())
        line = lines.emplace(value.line, FSoughtLine::inText(text, value.line)).first;
    FSoughtLine sought = line->second;
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
    qint64 line = 0;
    qint64 lineBegin = 0;
    for (size_t i = 0; i < readings.size(); ++i) {
        const Reading& reading = readings[i];
        if (i == 0 || !(readings[i - 1].line == reading.line)) {
            cursor.emplace(text.text(), reading.line, separator());
            line = text.index().lineAt(reading.line.begin);
            lineBegin = text.index().lineBegin(reading.line.begin);
        }
        FFoundValue& value = found[reading.value];
        const FFoundFlags flags = value.flags;
        value = cursor->seek(mValues[reading.value].column).value(text, line, lineBegin);
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
    std::vector<Rank> ranks;
    ranks.reserve(mValues.size());
    for (size_t i = 0; i < mValues.size(); ++i) {
        const qint64 position = placeOf(mValues[i].anchor, places[i]).begin;
        const FValueDescription& value = mValues[i];
        ranks.push_back({std::max<qint64>(position, 0), value.line, value.column, beginOf(value.name), &value.name});
    }
    std::sort(numbers.begin(), numbers.end(), [&ranks](int left, int right) {
        const auto order = ranks[static_cast<size_t>(left)] <=> ranks[static_cast<size_t>(right)];
        return std::is_eq(order) ? left < right : std::is_lt(order);
    });
    return numbers;
}
