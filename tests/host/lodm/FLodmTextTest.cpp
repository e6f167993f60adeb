#include "host/lodm/FLodmText.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

TEST(FLodmTextTest, onlyWhatXmlCannotHoldIsEscaped) {
    EXPECT_EQ(FLodmText::toXml("a\r\n\tb\x01 <&> C:\\users \\u12"), "a\\u000d\n\tb\\u0001 <&> C:\\users \\u12");
    EXPECT_EQ(FLodmText::toXml("\\u00e4"), "\\u005cu00e4");
    EXPECT_EQ(FLodmText::fromXml("\\u00e4 \\\\u0041 \\u00g4"), QString::fromUtf8("ä \\A \\u00g4"));
    const QString pair = QString::fromUtf8("𝄞");
    EXPECT_EQ(FLodmText::toXml(pair), pair);
    EXPECT_EQ(FLodmText::toXml(pair.left(1) + "x"), "\\ud834x");
}

TEST(FLodmTextTest, everyTextComesBack) {
    QRandomGenerator random(7);
    const QString units =
        QString("\\u0d1eU x\r\n\t") + QChar(0) + QChar(0x1f) + QChar(0xfffe) + QChar(0xd834) + QChar(0xdd1e);
    for (int i = 0; i < 3000; ++i) {
        QString text;
        for (int length = random.bounded(20); length > 0; --length) {
            text += units[random.bounded(units.size())];
        }
        ASSERT_EQ(FLodmText::fromXml(FLodmText::toXml(text)), text) << FLodmText::toXml(text).toStdString();
    }
}
