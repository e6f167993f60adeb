#include "host/core/FObjectName.h"

#include <gtest/gtest.h>

#include <QSet>

#include <tuple>
#include <utility>

TEST(FObjectNameTest, illegalTextsAreCorrected) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {{u"out.dat", u"out_dat"},
                                                                 {u"", u""},
                                                                 {u"span_1", u"span_1"},
                                                                 {u"1st", u"_1st"},
                                                                 {u"größe", u"größe"},
                                                                 {u"a b\n\"c", u"a_b__c"},
                                                                 {u"\U00010400x\U0001F600", u"\U00010400x_"},
                                                                 {u"\xd83d.", u"__"},
                                                                 {u"NULL", u"_NULL"},
                                                                 {u"null", u"null"},
                                                                 {u"while", u"_while"}};
    for (const auto& [text, name] : cases) {
        const QString legal = legalName(QString::fromUtf16(text));
        EXPECT_EQ(legal.toStdString(), QString::fromUtf16(name).toStdString());
        EXPECT_EQ(legalName(legal), legal);
        EXPECT_EQ(FObjectName::isLegal(legal), !legal.isEmpty());
    }
}

TEST(FObjectNameTest, aReservedWordOrNothingMayBecomeAName) {
    for (const auto& [text, isLegal, canBecome] : {std::tuple("span_1", true, true),
                                                   {"", false, true},
                                                   {"while", false, true},
                                                   {"1st", false, false},
                                                   {"a b", false, false}}) {
        EXPECT_EQ(FObjectName::isLegal(text), isLegal) << text;
        EXPECT_EQ(FObjectName::canBecomeLegal(text), canBecome) << text;
    }
}

TEST(FObjectNameTest, takenNamesGetTheFirstFreeNumber) {
    QSet<QString> names;
    const auto taken = [&names](const QString& name) { return names.contains(name); };
    for (int i = 0; i < 12; ++i) {
        names.insert(uniqueName("a", taken));
    }
    for (const char* name : {"a", "a_01", "a_09", "a_10", "a_11"}) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
    names.remove("a_03");
    EXPECT_EQ(uniqueName("a", taken), QString("a_03"));
}
