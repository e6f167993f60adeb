#include "genericintegration/io/FAnchorSearch.h"
#include "host/run/FResultText.h"

#include <gtest/gtest.h>

#include <QTextCodec>

TEST(FAnchorSearchTest, aSurrogatePairIsFoundAcrossPiecesOfTheDecoding) {
    const QString content = QString(8190, 'x') + QStringLiteral("\U00010428");
    const QByteArray file = QTextCodec::codecForName("UTF-16")->fromUnicode(content);
    const FAnchorSearch search({QStringLiteral("\U00010400")});
    EXPECT_EQ(8190, search.findInTrimmed(FResultText::fromFile(file)).front().first.begin);
}

TEST(FAnchorSearchTest, anUnpairedSurrogateIsNeverFound) {
    const FResultText text = FResultText::fromString(QStringLiteral("a\U00010400"));
    EXPECT_EQ(-1, FAnchorSearch({QString(QChar(0xDC00))}).findInTrimmed(text).front().first.begin);
}
