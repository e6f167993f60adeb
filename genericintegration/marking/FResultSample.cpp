#include "genericintegration/marking/FResultSample.h"

#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueSearch.h"
#include "genericintegration/marking/FDocumentLineEnd.h"
#include "host/run/FUtf8.h"

#include <algorithm>

FResultSample::FResultSample(const QString& content) : mContent(content), mText(FResultText::fromString(content)) {
    if (content.contains(QChar::Nbsp)) {
        mWithBlanks = FResultText::fromString(QString(content).replace(QChar::Nbsp, QLatin1Char(' ')));
    }
    mLines.push_back({0, 0});
    int joined = 0;  // characters that belong to the line end before them
    for (int offset = 0; offset < content.size();) {
        const int length = FDocumentLineEnd::lengthAt(content, offset);
        offset += std::max(length, 1);
        if (length > 0) {
            joined += length - 1;
            mLines.push_back({offset, offset - joined});
        }
    }
}

QString FResultSample::line(int number) const {
    return mContent.mid(mLines[static_cast<std::size_t>(number)].offset, lineLength(number));
}

int FResultSample::lineLength(int number) const {
    const std::size_t index = static_cast<std::size_t>(number);
    return index + 1 < mLines.size() ? mLines[index + 1].position - 1 - mLines[index].position
                                     : mContent.size() - mLines[index].offset;
}

int FResultSample::lineAtPosition(int position) const {
    const auto after = std::upper_bound(mLines.begin(), mLines.end(), position,
                                        [](int wanted, const Line& line) { return wanted < line.position; });
    return static_cast<int>(after - mLines.begin()) - 1;
}

int FResultSample::lineAtOffset(int offset) const {
    const auto after = std::upper_bound(mLines.begin(), mLines.end(), offset,
                                        [](int wanted, const Line& line) { return wanted < line.offset; });
    return static_cast<int>(after - mLines.begin()) - 1;
}

int FResultSample::positionOf(int offset) const {
    const Line& line = mLines[static_cast<std::size_t>(lineAtOffset(offset))];
    return line.position + offset - line.offset;
}

qint64 FResultSample::offsetAt(int position) const {
    const Line& line = mLines[static_cast<std::size_t>(lineAtPosition(position))];
    return mText.index().offsetOfUtf16(line.offset + position - line.position);
}

QString FResultSample::lineRead(qint64 number) const {
    const qint64 begin = mText.index().lineStart(number);
    const qint64 feed = mText.index().lineFeed(begin);
    constexpr qint64 longest = 1000;  // bytes
    const qint64 size = std::min(feed < 0 ? mText.size() - begin : feed - begin, longest);
    return FUtf8::decode(mText.text().substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(size)));
}

int FResultSample::lastFilledLine() const {
    const qint64 trimmed = mText.trimmedSize();
    return trimmed == 0 ? -1 : lineAtOffset(static_cast<int>(mText.index().utf16At(trimmed)) - 1);
}

const FResultSample::Anchor& FResultSample::lookUp(const QString& anchor) const {
    if (!mAnchor || mAnchor->text != anchor) {
        const FAnchorSearch search({anchor});
        const FAnchorPlaces inTrimmed = search.findInTrimmed(mText).front();
        const FAnchorPlaces inSearched = mWithBlanks ? search.findInTrimmed(*mWithBlanks).front() : inTrimmed;
        mAnchor = Anchor{anchor, inTrimmed, search.extendToWhole(searched(), {inSearched}).front()};
    }
    return *mAnchor;
}

std::optional<FTextRange> FResultSample::find(const FAnchor& anchor) const {
    const bool crossesLines = std::any_of(anchor.text.begin(), anchor.text.end(), &FDocumentLineEnd::isPart);
    if (crossesLines || anchor.text.contains(QChar::Nbsp)) {
        return {};
    }
    const FAnchorPlaces& places = lookUp(anchor.text).inDocument;
    const FByteRange place = anchor.occurrence == FAnchorOccurrence::First ? places.first : places.last;
    if (place.begin < 0) {
        return {};
    }
    const int begin = positionOf(static_cast<int>(searched().index().utf16At(place.begin)));
    return FTextRange{begin, anchor.text.size()};
}

FFoundValue FResultSample::read(const FValueDescription& value, const FSeparatorSettings& separators) const {
    return FValueSearch({value}, separators).find(mText, {lookUp(value.anchor.text).inTrimmed}).values.front();
}

FTextRange FResultSample::rangeOf(qint64 line, qint64 column, int length) const {
    const FTextIndex& index = mText.index();
    const int offset = static_cast<int>(index.utf16At(index.lineStart(line - 1)) + column - 1);
    const int begin = positionOf(offset);
    return {begin, positionOf(offset + length) - begin};
}
