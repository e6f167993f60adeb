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
          mLastLine(sample.lineCount() - 1),
          mRows(rows()) {
        FSeparatorMatches::startText();
    }

    FResultMarks walk(FLineRange view) {
        if (mValue.average) {
            markRows(view);
        } else {
            markPlace();
        }
        return mMarks;
    }

    /** Whether a line is a row of the average. */
    bool isRow(int number) const { return mRows.first <= number && number <= mRows.last; }
    /** The column of the average in a line. */
    FTextRange columnOfRow(int number) const {
        const QString& anchor = mValue.anchor.text;
        QString text = withoutIndent(mSample.line(number));
        int start = 0;
        if (mValue.line == 0) {
            text = withoutIndent(text.mid(anchor.size()));
            start = anchor.isEmpty() ? 0 : text.indexOf(anchor, 0, Qt::CaseInsensitive) + anchor.size();
        }
        return columnIn(number, text, start);
    }

 private:
    void markPlace() {
        const std::optional<FTextRange> anchor = mSample.find(mValue.anchor);
        const qint64 target = lineToMark(anchor);
        if (target >= 0 && target <= mLastLine) {
            const int number = static_cast<int>(target);
            const QString text = withoutIndent(mSample.line(number));
            mMarks.place = columnIn(number, mValue.line == 0 ? behindAnchor(text) : text, 0);
            mMarks.cursor = mMarks.place.end();
            append(mMarks.lines, {mSample.linePosition(number), mSample.lineLength(number)});
            append(mMarks.columns, mMarks.place);
        }
        if (anchor) {
            mMarks.anchor = anchor;
            mMarks.cursor = anchor->end();
        }
        if (mMarks.columns.empty()) {
            mMarks.place = {mMarks.cursor, 0};
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

    // The rows of the average end with the last line that isn't blank. Blank lines before it count, as for the reader.
    FLineRange rows() const {
        const int last = std::max(mSample.lastFilledLine(), 0);
        return {last + 1 - static_cast<int>(std::min<qint64>(mValue.averageRows, last + 1)), last};
    }

    void markRows(FLineRange view) {
        const auto [first, last] = mRows;
        if (first > last) {
            mMarks.cursor = mSample.documentEnd();
            mMarks.place = {mMarks.cursor, 0};
            return;
        }
        for (int number = std::min(last, view.last); number >= std::max(first, view.first); --number) {
            append(mMarks.lines, {mSample.linePosition(number), mSample.lineLength(number)});
            append(mMarks.columns, columnOfRow(number));
        }
        mMarks.place = columnOfRow(last);
        mMarks.cursor = columnOfRow(first).end();
    }

    // The text is the end of the line, in which the search starts somewhere.
    FTextRange columnIn(int number, const QString& text, int start) const {
        const FColumnPlace place = mSeparator ? FColumnPlace::find(*mSeparator, text, start, mValue.column, false)
                                              : placeOfNumber(text, start, mValue.column);
        const int textBegin = mSample.linePosition(number) + mSample.lineLength(number) - text.size();
        return {std::min(textBegin + std::max(place.start, 0), mSample.documentEnd()), std::max(place.length, 0)};
    }

    const FResultSample& mSample;
    const FValueDescription& mValue;
    std::shared_ptr<const FSeparator> mSeparator;  //!< null where numbers are columns
    int mLastLine;
    FLineRange mRows;
    FResultMarks mMarks;
};

/** Where the reader found the numbers of an average. */
std::vector<FTextRange> placesOf(const FAverageRows& rows, const FResultSample& sample) {
    std::vector<FTextRange> places;
    qint64 begin = 0;
    for (const FAverageRow& row : rows.rows) {
        const QString text = FUtf8::decode(FByteRange{begin, row.textEnd}.of(rows.texts));
        places.push_back(sample.rangeOf(row.line, row.column, text.size()));
        begin = row.textEnd;
    }
    return places;
}

}  // namespace

FResultMarks FResultMarks::of(const FResultSample& sample, const FValueDescription& value,
                              const FSeparatorSettings& separators, const FFoundValue& found, FLineRange view) {
    FMarkWalk walk(sample, value, separators);
    FResultMarks marks = walk.walk(view);
    if (found.rows) {
        for (const FTextRange& place : placesOf(*found.rows, sample)) {
            const int line = sample.lineAtPosition(place.begin);
            if (!walk.isRow(line) || !(walk.columnOfRow(line) == place)) {
                append(marks.readerPlaces, place);
            }
        }
    } else if (found.column > 0) {
        const FTextRange place = sample.rangeOf(found.line, found.column, found.textIn(sample.text()).size());
        if (!(marks.place == place)) {
            append(marks.readerPlaces, place);
        }
    }
    return marks;
}

void FResultMarks::showRows(const FResultSample& sample, const FValueDescription& value,
                            const FSeparatorSettings& separators, FLineRange view) {
    FResultMarks inView = FMarkWalk(sample, value, separators).walk(view);
    lines = std::move(inView.lines);
    columns = std::move(inView.columns);
}
