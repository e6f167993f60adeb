#include "genericintegration/marking/FLongLines.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>

namespace {

QStringList linesOf(const QString& text) {
    static const QRegularExpression end("\r\n|[\n\r\u2029]");
    return text.split(end);
}

QString randomLine(QRandomGenerator& random) {
    const QStringList parts{"x", "12.5 ", "\U0001F600", "\u00a0"};
    const int sizes[] = {0, 3, 1500, FLongLines::longest - 1, FLongLines::longest, FLongLines::longest + 1, 130'000};
    const int size = sizes[random.bounded(7)];
    QString line;
    while (line.size() < size) {
        line += parts[random.bounded(parts.size())];
    }
    // Parts are longer than one unit; what follows them isn't, so that the size is exact.
    line.truncate(size);
    return line.endsWith(QChar(0xD83D)) ? line.left(size - 1) + 'x' : line;
}

}  // namespace

TEST(FLongLinesTest, piecesMakeUpTheTextAndEveryPlaceIsFoundInBoth) {
    for (int seed = 0; seed < randomCases(60); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        QString text;
        QStringList lines;
        for (int count = 1 + random.bounded(4); count > 0; --count) {
            lines.append(randomLine(random));
            text += lines.last() + (count > 1 ? QStringList{"\n", "\r\n", "\r"}[random.bounded(3)] : QString());
        }
        const FLongLines longLines(text);
        int firstLong = 0;
        for (int i = lines.size(); i > 0; --i) {
            firstLong = lines[i - 1].size() > FLongLines::longest ? i : firstLong;
        }
        ASSERT_EQ(FLongLines::first(text, FLongLines::longest), firstLong) << seed;
        ASSERT_EQ(longLines.areThere(), firstLong > 0) << seed;

        // The same, line by line.
        const QStringList pieces = linesOf(longLines.cut(text));
        QString shown;
        int piece = 0;
        for (int i = 0; i < lines.size(); ++i) {
            ASSERT_EQ(longLines.numberOf(piece), i + 1) << seed;
            QString line = pieces[piece++];
            const bool isCut = line.size() < lines[i].size();
            ASSERT_EQ(isCut, lines[i].size() > FLongLines::longest) << seed;
            while (line.size() < lines[i].size()) {
                ASSERT_EQ(longLines.numberOf(piece), 0) << seed;
                ASSERT_FALSE(pieces[piece].at(0).isLowSurrogate()) << seed;
                ASSERT_LE(pieces[piece].size(), FLongLines::piece + 1) << seed;
                line += pieces[piece++];
            }
            ASSERT_EQ(line, lines[i]) << seed;
        }
        ASSERT_EQ(piece, pieces.size()) << seed;

        const QString document = lines.join('\n');
        const QString cut = pieces.join('\n');
        for (int i = 0; i < 200; ++i) {
            const int position = random.bounded(document.size() + 1);
            const int place = longLines.shownAt(position);
            ASSERT_EQ(longLines.positionOf(place), position) << seed;
            ASSERT_EQ(cut.mid(place, 1), document.mid(position, 1)) << seed;
        }
    }
}
