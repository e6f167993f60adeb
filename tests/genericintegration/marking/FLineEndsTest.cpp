#include "genericintegration/marking/FLineEnds.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>

namespace {

const QString separator(QChar(0x2029));

/** Text and document lines in turn; the same line ends as QTextDocument's. */
QStringList linesOf(const QString& text) {
    static const QRegularExpression end("\r\n|[\n\r\u2029\uFDD0\uFDD1]");
    return text.split(end);
}

QString edited(const QString& text, const QStringList& lines) {
    return FLineEnds::change(text, lines.join(separator)).appliedTo(text);
}

struct Row {
    const char* text;
    QStringList lines;
    const char* edited;
};

TEST(FLineEndsTest, onlyTheEditChanges) {
    const Row rows[] = {
        {"", {"a", "b"}, "a\nb"},
        {"a\r\nb\rc\r\nd", {"a", "B", "c", "d"}, "a\r\nB\rc\r\nd"},
        {"a\r\nb\rc\r\nd", {"a", "b", "b2", "c", "d"}, "a\r\nb\rb2\r\nc\r\nd"},
        {"a\rb\r\nc\nd", {"A", "b", "c", "D"}, "A\rb\r\nc\nD"},
        {"a\r\nb\n", {"a", "b"}, "a\r\nb"},
        {"x\u00a0y\u2028z\nw", {"x\u00a0y\u2028z", "W"}, "x\u00a0y\u2028z\nW"},
        {"a\rb\rc\nd", {"a", "b", "c", "", "d"}, "a\rb\rc\n\rd"},
        {"a\rb\nc", {"a", "", "c"}, "a\r\n\nc"},
        {"a\u2029b", {"a", "c"}, "a\u2029c"},
    };
    for (const Row& row : rows) {
        const QString text = QString(row.text);
        EXPECT_EQ(edited(text, row.lines), QString(row.edited)) << text.toStdString();
    }
}

TEST(FLineEndsTest, noSurrogatePairIsCut) {
    const FTextReplacement change = FLineEnds::change("\U0001F600x\U0001F601", "\U0001F602x\U00010A01");
    EXPECT_EQ(change.position, 0);
    EXPECT_EQ(change.removed, 5);
}

// The lines are those of the document, and nothing outside the smallest changed range is touched.
TEST(FLineEndsTest, randomEditsKeepTheOtherLines) {
    const QStringList ends{"\n", "\r\n", "\r", separator};
    const QStringList parts{"a", "b", "", "\u00a0", "\u2028", "\U0001F600"};
    for (int seed = 0; seed < randomCases(20000); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        const auto pick = [&random](const QStringList& list) { return list[random.bounded(list.size())]; };
        QString text;
        for (int count = random.bounded(8); count > 0; --count) {
            text += pick(parts) + pick(parts) + pick(ends);
        }
        QStringList lines = linesOf(text);
        const QStringList before = lines;
        for (int count = random.bounded(3); count > 0; --count) {
            const int line = random.bounded(lines.size());
            switch (random.bounded(3)) {
                case 0:
                    lines[line] = pick(parts) + lines[line];
                    break;
                case 1:
                    lines.insert(line, pick(parts));
                    break;
                default:
                    lines.removeAt(line);
                    lines = lines.isEmpty() ? QStringList{""} : lines;
            }
        }
        const FTextReplacement change = FLineEnds::change(text, lines.join(separator));
        const QString result = change.appliedTo(text);
        ASSERT_EQ(linesOf(result), lines) << seed;
        ASSERT_EQ(change.isEmpty(), lines == before) << seed;
        // Positions are those of the document, also where its text is given with other line ends.
        for (const QString& shown : {before.join(separator), text}) {
            QString document = before.join(separator);
            const std::vector<FTextReplacement> changes = FLineEnds::changesOfDocument(shown, result);
            for (auto step = changes.rbegin(); step != changes.rend(); ++step) {
                document = step->appliedTo(document);
            }
            ASSERT_EQ(linesOf(document), lines) << seed;
        }
        int common = 0;
        while (common < qMin(lines.size(), before.size()) && lines[common] == before[common]) {
            ++common;
        }
        const QString kept = before.mid(0, common).join(separator);
        ASSERT_GE(change.position, kept.size()) << seed;
    }
}

}  // namespace
