#include "FLiteralMarks.h"
#include "genericintegration/marking/FLineEnds.h"
#include "genericintegration/marking/FResultMarks.h"
#include "genericintegration/marking/FResultSample.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

namespace {

FValueDescription valueAt(int line, int column, const FAnchor& anchor = {}) {
    FValueDescription value;
    value.line = line;
    value.column = column;
    value.anchor = anchor;
    return value;
}

FValueDescription averageOf(quint32 rows, int column) {
    FValueDescription value = valueAt(0, column);
    value.average = true;
    value.averageRows = rows;
    return value;
}

FResultMarks marksOf(const QString& text, const FValueDescription& value, const FSeparatorSettings& separators = {}) {
    const FResultSample sample(text);
    return FResultMarks::of(sample, value, separators, sample.read(value, separators));
}

QString painted(const FResultMarks& marks, int size) {
    QString letters(size, ' ');
    const auto paint = [&letters](FTextRange range, char letter) {
        letters.replace(range.begin, range.length, QString(range.length, letter));
    };
    for (const FTextRange& line : marks.lines) {
        paint(line, 'l');
    }
    for (const FTextRange& column : marks.columns) {
        paint(column, 'c');
    }
    if (marks.anchor) {
        paint(*marks.anchor, 'a');
    }
    return letters;
}

struct Row {
    const char* text;
    FValueDescription value;
    const char* painted;
    std::vector<FTextRange> readerPlaces{};
};

TEST(FResultMarksTest, placesAreMarked) {
    const FAnchor last{"X =", FAnchorOccurrence::Last};
    const FAnchor first{"X =", FAnchorOccurrence::First};
    const Row rows[] = {
        {"a 1\nx = 5 x = 6 7", valueAt(0, 1, last), "    llllllaaalllc"},
        {"x = 5 x = 6", valueAt(0, 0, first), "aaalllllllc", {{4, 1}}},
        {"1\n2 \n\n \n", valueAt(-1, 0), "  cl    "},
        {"1\r\n2\r\n", valueAt(9, 0), "    "},
        {"x = 1\n2", valueAt(7, 0, last), "aaa    "},
        {"1\n2\n3", valueAt(0, 0, {"none", FAnchorOccurrence::Last}), "    c", {{0, 1}}},
        {"1\n2\nx = 3", valueAt(-3, 0, last), "    aaa  ", {{2, 1}}},
        {"9\n1 2\n  3 4\n\n5 6\n\n", averageOf(3, 1), "      llllc  llc  "},
    };
    for (const Row& row : rows) {
        const QString text(row.text);
        const FResultMarks marks = marksOf(text, row.value);
        EXPECT_EQ(painted(marks, FResultSample(text).documentEnd()).toStdString(), row.painted) << row.text;
        EXPECT_EQ(marks.readerPlaces, row.readerPlaces) << row.text;
    }
}

TEST(FResultMarksTest, theRowsOfALongAverageAreMarkedWhereTheyAreInView) {
    constexpr int rows = 20'000;
    const FResultSample sample(QString("7\n").repeated(rows + 5));
    const FValueDescription value = averageOf(rows, 0);
    FResultMarks marks = FResultMarks::of(sample, value, {}, sample.read(value, {}), {3, 7});
    EXPECT_EQ(marks.columns, (std::vector<FTextRange>{{14, 1}, {12, 1}, {10, 1}}));
    EXPECT_EQ(marks.place, (FTextRange{2 * (rows + 4), 1}));
    EXPECT_EQ(marks.cursor, 11);
    EXPECT_TRUE(marks.readerPlaces.empty());
    marks.showRows(sample, value, {}, {rows + 2, rows + 9});
    EXPECT_EQ(marks.columns, (std::vector<FTextRange>{{2 * rows + 8, 1}, {2 * rows + 6, 1}, {2 * rows + 4, 1}}));
}

/** Random samples and values. */
class FSampleCases {
 public:
    explicit FSampleCases(int seed) : mRandom(static_cast<quint32>(seed)) {}

    int below(int count) { return mRandom.bounded(count); }

    QString text() {
        static const QStringList parts{"1", "2.5e3", "-7", "x =", "X =", "word", " ", "  ", "\t", ",", "\u00a0", "k"};
        static const QStringList ends{"\n", "\n", "\n", "\r\n", "\r", "\n\n", "\n \n"};
        QString text;
        for (int count = below(14); count > 0; --count) {
            text += below(3) == 0 ? ends[below(ends.size())] : parts[below(parts.size())] + QString(below(2), ' ');
        }
        return text;
    }

    FValueDescription value() {
        static const QStringList anchors{"", "", "x =", "word", " ", "1", "absent", "x\n", "\u00a0", "\u212a"};
        FValueDescription value = valueAt(below(7) - 3, below(3), {anchors[below(anchors.size())], {}});
        value.anchor.occurrence = below(2) == 0 ? FAnchorOccurrence::First : FAnchorOccurrence::Last;
        value.average = below(5) == 0;
        value.averageRows = static_cast<quint32>(below(5));
        return value;
    }

    FSeparatorSettings separators() {
        static const QStringList expressions{"", ",", "[, ]"};
        return {below(2) == 0, below(2) == 0, expressions[below(3)]};
    }

 private:
    QRandomGenerator mRandom;
};

// The document has the line ends that the sample assumes, since an edit that changes nothing changes no text.
TEST(FResultMarksTest, randomValuesAreMarkedAsByTheCursorOfAnEditor) {
    QPlainTextEdit edit;
    edit.setLineWrapMode(QPlainTextEdit::NoWrap);
    for (int seed = 0; seed < randomCases(3000) && !testing::Test::HasFailure(); ++seed) {
        FSampleCases cases(seed);
        const QString text = cases.text();
        edit.setPlainText(text);
        EXPECT_TRUE(FLineEnds::change(text, edit.document()->toRawText()).isEmpty());
        const FResultSample sample(text);
        for (int count = 0; count < 4; ++count) {
            const FValueDescription value = cases.value();
            const FSeparatorSettings separators = cases.separators();
            const FFoundValue found = sample.read(value, separators);
            const FResultMarks marks = FResultMarks::of(sample, value, separators, found);
            const FLiteralMarks literal(edit, value, separators);
            const std::string about = QString("%1: %2\nline %3 column %4 anchor '%5' average %6 separator %7")
                                          .arg(seed)
                                          .arg(text)
                                          .arg(value.line)
                                          .arg(value.column)
                                          .arg(value.anchor.text)
                                          .arg(value.average ? static_cast<int>(value.averageRows) : -1)
                                          .arg(separators.expression())
                                          .toStdString();
            EXPECT_EQ(painted(marks, sample.documentEnd()).toStdString(), literal.painted.toStdString()) << about;
            EXPECT_EQ(marks.cursor, edit.textCursor().position()) << about;

            // The place of a single value is marked in one way or the other.
            const QString foundText = found.textIn(sample.text());
            if (value.average || foundText.isEmpty()) {
                continue;
            }
            const FTextRange place = sample.rangeOf(found.line, found.column, foundText.size());
            const bool isReadElsewhere = !marks.readerPlaces.empty();
            EXPECT_EQ(isReadElsewhere ? marks.readerPlaces : marks.columns, std::vector<FTextRange>{place}) << about;
            QTextCursor cursor(edit.document());
            cursor.setPosition(place.begin);
            cursor.setPosition(place.end(), QTextCursor::KeepAnchor);
            if (!foundText.contains('\r')) {
                EXPECT_EQ(cursor.selectedText(), foundText) << about;
            }
        }
    }
}

}  // namespace
