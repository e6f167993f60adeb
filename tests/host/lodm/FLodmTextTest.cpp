#include "host/lodm/FLodmText.h"

#include <gtest/gtest.h>

TEST(FLodmTextTest, onlyWhatXmlCannotHoldIsEscaped) {
    EXPECT_EQ(FLodmText::toXml("a\r\n\tb\x01 <&> C:\\users \\u12"), "a\\u000d\n\tb\\u0001 <&> C:\\users \\u12");
    EXPECT_EQ(FLodmText::toXml("\\u00e4"), "\\u005cu00e4");
    EXPECT_EQ(FLodmText::fromXml("\\u00e4 \\\\u0041 \\u00g4"), QString::fromUtf8("ä \\A \\u00g4"));
    const QString pair = QString::fromUtf8("𝄞");
    EXPECT_EQ(FLodmText::toXml(pair), pair);
    EXPECT_EQ(FLodmText::toXml(pair.left(1) + "x"), "\\ud834x");
    EXPECT_EQ(FLodmText::fromXml("\\ud834x"), pair.left(1) + "x");
}
