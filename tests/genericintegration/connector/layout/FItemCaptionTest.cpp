#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "genericintegration/connector/layout/FLinkText.h"

#include <gtest/gtest.h>

namespace {

TEST(FItemCaptionTest, typeOnTheIcon) {
    EXPECT_EQ(FItemCaption::typeText("case.input"), "inpu");
    EXPECT_EQ(FItemCaption::typeText("dir/solver.c"), "c");
    EXPECT_EQ(FItemCaption::typeText("dir\\Makefile"), "Make");
    EXPECT_EQ(FItemCaption::typeText("a"), "a");
    EXPECT_EQ(FItemCaption::typeText("\"mesh.su2\"\""), "su2");
    EXPECT_EQ(FItemCaption::typeText("run.d/start"), "d/st") << "the last dot counts wherever it is";
    EXPECT_EQ(FItemCaption::typeText("dot."), "");
}

TEST(FItemCaptionTest, longPathsShowBothEnds) {
    const QString path = "/home/user/projects/a/b/c/polar.dat";
    ASSERT_EQ(path.size(), 35);
    EXPECT_EQ(FItemCaption::shortened(path), path.left(11) + "..." + path.right(19));
    EXPECT_EQ(FItemCaption::shortened(path.mid(1)), path.mid(1)) << "at most four characters too long";
    EXPECT_EQ(FItemCaption::shortened(path, 10), "/..." + path.right(9)) << "an odd rest goes to the front";
    EXPECT_EQ(FItemCaption::shortened(path, 9), "polar.dat") << "no room for the folder";
    EXPECT_EQ(FItemCaption::shortened(path, -1), path);
    EXPECT_EQ(FItemCaption::shortened(QString(60, 'n')), QString(60, 'n')) << "no folder";
    EXPECT_EQ(FItemCaption::shortened("C:\\x\\" + QString(40, 'n')), QString(40, 'n'));
}

TEST(FItemCaptionTest, namesOfEntriesAndLinks) {
    EXPECT_EQ(FItemCaption::entryName("/a/b.c/polar.tar.gz"), "polar.tar");
    EXPECT_EQ(FItemCaption::entryName("b.c\\Makefile"), "Makefile");
    EXPECT_EQ(FItemCaption::entryName("a/.profile"), "newEntry");
    EXPECT_EQ(FItemCaption::entryName("a/"), "newEntry");

    EXPECT_EQ(FLinkText::name("c.getResults().getResultTemplateName(\"a b.out\")"), "a b.out");
    EXPECT_EQ(FLinkText::name("c.getResults().getResultFileName(polar)"), "polar");
    EXPECT_EQ(FLinkText::name("plain"), "plain");
    EXPECT_EQ(FLinkText::name("\""), "");
    EXPECT_EQ(FLinkText::caption("c.GETRESULTFILENAME(\"polar.dat\")"), "polar.dat");
    EXPECT_EQ(FLinkText::caption("path(\"polar.dat\")"), "path(\"polar.dat\")");
}

TEST(FItemCaptionTest, namesRelativeToABase) {
    EXPECT_EQ(FItemPath::belowBase("/in/sub/a.dat", "/in"), "sub/a.dat");
    EXPECT_EQ(FItemPath::belowBase("/in/a.dat", "/in/"), "a.dat");
    EXPECT_EQ(FItemPath::belowBase("/other/a.dat", "/in"), "") << "a path that was typed may be anywhere";
    EXPECT_EQ(FItemPath::folderBelow("/in/sub/a.dat", "/in"), "sub/");
    EXPECT_EQ(FItemPath::folderBelow("/in/a.dat", "/in/"), "");
    EXPECT_EQ(FItemPath::folderBelow("/inner/sub/a.dat", "/in"), "") << "/in isn't a folder of it";
    EXPECT_EQ(FItemPath::folderBelow("/in/a.dat", ""), "");
    EXPECT_EQ(FItemPath::inFolder("/in/a.dat", "sub"), "sub/a.dat");
    EXPECT_EQ(FItemPath::inFolder("C:\\in\\a.dat", "sub\\"), "sub\\a.dat");
    EXPECT_EQ(FItemPath::withoutBase("/run/out/polar.csv", "/run"), "out/polar.csv");
    EXPECT_EQ(FItemPath::withoutBase("polar.csv", ""), "polar.csv");
}

}  // namespace
