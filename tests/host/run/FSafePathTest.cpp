#include "host/run/FSafePath.h"
#include "tests/support/FTestFolder.h"

#include <unistd.h>

TEST(FSafePathTest, removesWhatLiesElsewhereAsWell) {
    const FTestFolder folder;
    folder.write("mine", "mine");
    ASSERT_TRUE(QFile::link(folder.path("mine"), folder.path("soft")));
    ASSERT_EQ(::link(qPrintable(folder.path("mine")), qPrintable(folder.path("hard"))), 0);
    folder.write("own", "own");
    for (const char* name : {"soft", "hard", "own", "missing"}) {
        EXPECT_TRUE(FSafePath::removeLink(folder.path(name))) << name;
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), (QStringList{"mine", "own"}));
    EXPECT_EQ(folder.read("mine"), "mine");
}

TEST(FSafePathTest, knowsNamesThatLeadOutOfAFolder) {
    for (const char* name : {"..", "../a", "a/../../b", "..\\a", "a\\..\\..\\b", "./../a"}) {
        EXPECT_TRUE(FSafePath::leadsOut(name)) << name;
    }
    for (const char* name : {"", "a", "a/b", "a/../b", "..a", "/a", "...", "a/.."}) {
        EXPECT_FALSE(FSafePath::leadsOut(name)) << name;
    }
}
