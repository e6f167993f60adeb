#include "host/gui/text/FShownLine.h"
#include "host/gui/text/FTextSearch.h"

#include <gtest/gtest.h>

#include <random>

namespace {

qint64 search(const QByteArray& text, const QString& what, bool matchesCase, int from, bool backwards) {
    FTextSearch found(what, matchesCase, from, backwards);
    FTextSearch::State state = FTextSearch::State::Searching;
    while (state == FTextSearch::State::Searching) {
        state = found.searchSlice({text.constData(), static_cast<std::size_t>(text.size())});
    }
    return state == FTextSearch::State::Found ? found.getBegin() : -1;
}

}  // namespace

TEST(FTextSearchTest, placesAreThoseOfASimpleSearchInBothDirections) {
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        QByteArray text;
        for (int i = 0; i < 60; ++i) {
            text += "abAB"[random() % 4];
        }
        const QByteArray what = text.mid(static_cast<int>(random() % 60), 1 + static_cast<int>(random() % 4)) +
                                (random() % 3 == 0 ? "b" : "");
        const bool matchesCase = random() % 2 == 0;
        const int from = static_cast<int>(random() % 61);
        const QByteArray in = matchesCase ? text : text.toLower();
        const QByteArray wanted = matchesCase ? what : what.toLower();
        const int below = in.indexOf(wanted, from);
        EXPECT_EQ(search(text, what, matchesCase, from, false), below >= 0 ? below : in.indexOf(wanted));
        const int last = from - wanted.size();
        const int above = last < 0 ? -1 : in.lastIndexOf(wanted, last);
        EXPECT_EQ(search(text, what, matchesCase, from, true), above >= 0 ? above : in.lastIndexOf(wanted));
    }
}

TEST(FTextSearchTest, aPlaceAcrossTwoSlicesIsFound) {
    constexpr int slice = 16 << 20;
    QByteArray text(2 * slice + 100, 'x');
    text.replace(slice - 3, 6, "needle");
    EXPECT_EQ(search(text, "NEEDLE", false, 0, false), slice - 3);
    EXPECT_EQ(search(text, "needle", true, text.size(), true), slice - 3);
    EXPECT_EQ(search(text, "needle", true, slice, false), slice - 3) << "goes on from the top";
    FTextSearch none("nowhere", true, 0, false);
    EXPECT_EQ(none.searchSlice(std::string_view(text.constData(), text.size())), FTextSearch::State::Searching);
    EXPECT_GT(none.getPercent(), 40);
    EXPECT_LT(none.getPercent(), 60);
}

TEST(FShownLineTest, cellsAndOffsetsBelongTogether) {
    const std::string text = "a\tb\xB5 \u00B5\x01\U0001F600z";
    const FShownLine line(text, 100);
    EXPECT_EQ(line.text, QString("a       b") + QChar(0xFFFD) + " " + QChar(0xB5) + QChar(0xFFFD) +
                             QString::fromUtf8("\U0001F600") + "z");
    ASSERT_EQ(line.offsets.size(), static_cast<std::size_t>(line.text.size() + 1));
    EXPECT_EQ(line.offsets.back(), static_cast<qint64>(text.size()));
    EXPECT_EQ(line.cellOf(0), 0);
    EXPECT_EQ(line.cellOf(1), 1) << "a tab starts at its first cell";
    EXPECT_EQ(line.cellOf(2), 8);
    EXPECT_EQ(line.cellOf(static_cast<qint64>(text.size()) - 1), line.text.size() - 1);
    EXPECT_EQ(line.cellOf(static_cast<qint64>(text.size())), line.text.size());
    EXPECT_EQ(FShownLine(text, 4).text, "a       ") << "no more than needed";
    EXPECT_EQ(FShownLine("", 4).cellOf(0), 0);
}
