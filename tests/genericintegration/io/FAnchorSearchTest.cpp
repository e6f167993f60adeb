#include "genericintegration/io/FAnchorSearch.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTextCodec>

#include <random>

#include "genericintegration/io/FAnchor.h"
#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FUtf8.h"

namespace {

int positionOf(const FResultText& text, const FByteRange& place) {
    return place.begin < 0 ? -1 : static_cast<int>(FUtf8::utf16Length(text.text().substr(0, size_t(place.begin))));
}

/// Long texts of few letters, in which anchors begin and end inside of each other.
QString makeText(std::mt19937& random, const QString& letters) {
    QString text;
    while (text.size() < 6000)
        text += letters.at(static_cast<int>(random() % static_cast<quint32>(letters.size())));
    return text;
}

}  // namespace

TEST(FAnchorSearchTest, findsEachAnchorWhereAStringFindsIt) {
    const QStringList alphabets = {"aAb ",
                                   "ab \n",
                                   QStringLiteral("kK\u212Aab "),
                                   QStringLiteral("\u00E4\u00C4ab"),
                                   QStringLiteral("abcdefghijklmnopqrstuvwxyz\u017F "),
                                   "        x"};
    for (quint32 seed = 0; seed < 120; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const QString content = makeText(random, alphabets.at(static_cast<int>(seed) % alphabets.size()));
        std::vector<QString> anchors = {"", "zz"};
        const int leastLength = 1 + static_cast<int>(seed) % 30;  // longer ones are searched in longer steps
        for (int i = 0; i < 150; ++i) {
            const int length = leastLength + static_cast<int>(random() % 40);
            const QString part = content.mid(static_cast<int>(random() % 6000), length);
            anchors.push_back(i % 3 == 0 ? part.toUpper() : i % 3 == 1 ? part.toLower() : part + "!");
        }
        const FResultText text = FResultText::fromString(content);
        const FAnchorSearch search(anchors);
        const std::vector<FAnchorPlaces> trimmed = search.findInTrimmed(text);
        const std::vector<FAnchorPlaces> whole = search.extendToWhole(text, trimmed);
        const QString start = content.left(
            static_cast<int>(FUtf8::utf16Length(text.text().substr(0, static_cast<size_t>(text.trimmedSize())))));
        for (size_t i = 0; i < anchors.size(); ++i) {
            SCOPED_TRACE(anchors[i].toStdString());
            const FAnchor first = {anchors[i], FAnchorOccurrence::First};
            const FAnchor last = {anchors[i], FAnchorOccurrence::Last};
            EXPECT_EQ(getAnchorPosition(first, start), positionOf(text, trimmed[i].first));
            EXPECT_EQ(getAnchorPosition(last, start), positionOf(text, trimmed[i].last));
            EXPECT_EQ(getAnchorPosition(first, content), positionOf(text, whole[i].first));
            EXPECT_EQ(getAnchorPosition(last, content), positionOf(text, whole[i].last));
        }
    }
}

TEST(FAnchorSearchTest, aPairIsFoundAcrossThePiecesInWhichAFileIsDecoded) {
    const QString content = QString(8190, 'x') + QStringLiteral("\U00010428");
    const QByteArray file = QTextCodec::codecForName("UTF-16")->fromUnicode(content);
    const FAnchorSearch search({QStringLiteral("\U00010400")});
    EXPECT_EQ(8190, search.findInTrimmed(FResultText::fromFile(file)).front().first.begin);
}

TEST(FAnchorSearchTest, halfASurrogatePairIsNeverFound) {
    const FResultText text = FResultText::fromString(QStringLiteral("a\U00010400"));
    EXPECT_EQ(-1, FAnchorSearch({QString(QChar(0xDC00))}).findInTrimmed(text).front().first.begin);
}
