#include "genericintegration/marking/FResultMarks.h"

#include "genericintegration/io/FColumnPlace.h"
#include "genericintegration/io/FSeparator.h"
#include "genericintegration/io/FSeparatorMatches.h"
#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/marking/FLineNumbers.h"
#include "genericintegration/marking/FResultSample.h"
#include "host/run/FUtf8.h"

#include <algorithm>

namespace {

QString withoutIndent(const QString& text) {
    const auto begin = std::find_if(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
    return text.mid(static_cast<int>(begin - text.begin()));
}

/** The place of a number in a line; before the missing one if there are fewer. */
FColumnPlace placeOfNumber(const QString& line, int start, int column) {
    FLineNumbers numbers(line, start);
    int end = start;
    for (; column > 0; --column) {
        const FTextRange number = numbers.next();
        if (number.length == 0) {
            return {-1, 0, false};
        }
        end = number.end();
    }
    const FTextRange number = numbers.next();
    return number.length == 0 ? FColumnPlace{end, 0, false} : FColumnPlace{number.begin, number.length, true};
}

void append(std::vector<FTextRange>& ranges, FTextRange range) {
    if (range.length > 0) {
        ranges.push_back(range);
    }
}

/** Marks a value in the steps of a user who searches for its anchor and then moves the cursor. */
class FMarkWalk {
 public:
    FMarkWalk(const FResultSample& sample, const FValueDescription& value, const FSeparatorSettings& separators)
        : mSample(sample),
          mValue(value),
          mSeparator(separators.findNumbers ? nullptr : FSeparator::of(separators.expression())),
          mLastLine(sample.lineCount() - 1) {
        FSeparatorMatches::startText();
    }

    FResultMarks walk() {
        if (mValue.average) {
            markRows();
        } else {
            markPlace();
        }
        return mMarks;
    }

 private:
    void markPlace() {
        const std::optional<FTextRange> anchor = mSample.find(mValue.anchor);
        const qint64 target = lineToMark(anchor);
        if (target >= 0 && target <= mLastLine) {
            const int number = static_cast<int>(target);
            const QString text = withoutIndent(mSample.line(number));
            markColumn(number, mValue.line == 0 ? behindAnchor(text) : text, 0);
        }
        if (anchor) {
            mMarks.anchor = anchor;
            mMarks.cursor = anchor->end();
        }
    }

    // Sets the cursor to where the steps start. Returns a line outside the document if there is none to mark.
    qint64 lineToMark(const std::optional<FTextRange>& anchor) {
        const bool countsFromEnd =
            mValue.anchor.text.isEmpty() ? mValue.line < 0 : mValue.anchor.occurrence == FAnchorOccurrence::Last;
        mMarks.cursor = countsFromEnd ? mSample.documentEnd() : 0;
        if (anchor) {
            return qint64{mSample.lineAtPosition(anchor->begin)} + mValue.line;
        }
        if (!countsFromEnd) {
            return mValue.line;
        }
        if (!mValue.anchor.text.isEmpty()) {
            return qint64{mLastLine} + mValue.line;
        }
        const int last = mSample.lastFilledLine();
        return last < 0 ? -1 : qint64{last} + mValue.line + 1;
    }

    QString behindAnchor(const QString& text) const {
        const QString& anchor = mValue.anchor.text;
        const int place = anchor.isEmpty() ? -1 : text.lastIndexOf(anchor, -1, Qt::CaseInsensitive);
        return place < 0 ? text : withoutIndent(text.mid(place + anchor.size()));
    }

    void markRows() {
        mMarks.cursor = mSample.documentEnd();
        const QString& anchor = mValue.anchor.text;
        const int first = std::max(mSample.lastFilledLine(), 0);
        const qint64 rows = std::min<qint64>({mValue.averageRows, FResultMarks::mostRows, first + 1});
        for (int number = first; number > first - rows; --number) {
            QString text = withoutIndent(mSample.line(number));
            int start = 0;
            if (mValue.line == 0) {
                text = withoutIndent(text.mid(anchor.size()));
                start = anchor.isEmpty() ? 0 : text.indexOf(anchor, 0, Qt::CaseInsensitive) + anchor.size();
            }
            markColumn(number, text, start);
        }
    }

    // The text is the end of the line, in which the search starts somewhere.
    void markColumn(int number, const QString& text, int start) {
        const int position = mSample.linePosition(number);
        const int length = mSample.lineLength(number);
        append(mMarks.lines, {position, length});
        const FColumnPlace place = mSeparator ? FColumnPlace::find(*mSeparator, text, start, mValue.column, false)
                                              : placeOfNumber(text, start, mValue.column);
        const int begin = std::min(position + length - text.size() + std::max(place.start, 0), mSample.documentEnd());
        const FTextRange column{begin, std::max(place.length, 0)};
        append(mMarks.columns, column);
        mMarks.cursor = column.end();
    }

    const FResultSample& mSample;
    const FValueDescription& mValue;
    std::shared_ptr<const FSeparator> mSeparator;  //!< null where numbers are columns
    int mLastLine;
    FResultMarks mMarks;
};

/** Where the reader found the value, or the numbers of its average. */
std::vector<FTextRange> placesOf(const FFoundValue& found, const FResultSample& sample) {
    std::vector<FTextRange> places;
    if (!found.rows && found.column > 0) {
        places.push_back(sample.rangeOf(found.line, found.column, found.textIn(sample.text()).size()));
    }
    if (found.rows) {
        qint64 begin = 0;
        for (const FAverageRow& row : found.rows->rows) {
            const QString text = FUtf8::decode(FByteRange{begin, row.textEnd}.of(found.rows->texts));
            places.push_back(sample.rangeOf(row.line, row.column, text.size()));
            begin = row.textEnd;
        }
    }
    return places;
}

}  // namespace

FResultMarks FResultMarks::of(const FResultSample& sample, const FValueDescription& value,
                              const FSeparatorSettings& separators, const FFoundValue& found) {
    FResultMarks marks = FMarkWalk(sample, value, separators).walk();
    if (value.average && value.averageRows > mostRows) {
        return marks;
    }
    const auto isBefore = [](FTextRange left, FTextRange right) { return left.begin < right.begin; };
    std::vector<FTextRange> marked = marks.columns;
    std::sort(marked.begin(), marked.end(), isBefore);
    for (const FTextRange& place : placesOf(found, sample)) {
        const auto same = std::lower_bound(marked.begin(), marked.end(), place, isBefore);
        if (same == marked.end() || !(*same == place)) {
            append(marks.readerPlaces, place);
        }
    }
    return marks;
}
