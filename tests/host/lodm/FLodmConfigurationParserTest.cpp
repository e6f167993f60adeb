#include "host/lodm/FLodmConfigurationParser.h"
#include "host/run/FTableData.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <sys/stat.h>

#include <cmath>

namespace {

class FLodmConfigurationParserTest : public FModelTest, public FTestFolder {
 protected:
    const QString mPath = path("curve.txt");
    FLodmConfigurationParser mParser{QString()};
};

}  // namespace

TEST_F(FLodmConfigurationParserTest, importsTextsAndTables) {
    write("curve.txt", "\n  x\ty \r\n1 2e3\n\n-.5 three 7\nno numbers\n4\n");
    EXPECT_TRUE(mParser.doImport("table", mPath, "curve"));
    const FExpr<FTableData> table(mParser.getObjects().value("curve"));
    ASSERT_TRUE(table);
    EXPECT_EQ(table->getRowCount(), 3);
    EXPECT_EQ(table->getElementAt(0, "y"), 2000);
    EXPECT_EQ(table->getElementAt(1, "x"), -0.5);
    EXPECT_TRUE(std::isnan(table->getElementAt(1, 1)));
    EXPECT_EQ(table->getElementAt(1, 2), 7);
    EXPECT_EQ(table->getElementAt(2, 0), 4);

    write("curve.txt", QByteArray("caf\xC3\xA9 \xFF\r\n"));
    EXPECT_TRUE(mParser.doImport("text", mPath, "note"));
    EXPECT_EQ(mParser.getObjects().keys(), QStringList({"note"})) << "a new import replaces the last one";
    EXPECT_EQ(mParser.getObjects().value("note").toString(), QString::fromUtf8("café \uFFFD\r\n"));
    EXPECT_TRUE(log().isEmpty());
}

TEST_F(FLodmConfigurationParserTest, reportsWhatItCanNotImport) {
    write("curve.txt", "1");
    EXPECT_TRUE(mParser.doImport("text", mPath, "note"));
    EXPECT_TRUE(mParser.doImport("mesh", mPath, "field"));
    EXPECT_TRUE(mParser.getObjects().isEmpty());
    EXPECT_TRUE(logHolds("\"mesh\"") && logHolds(mPath));
    EXPECT_TRUE(mParser.doImport("tecplot", mPath, "field"));
    EXPECT_TRUE(mParser.getObjects().isEmpty());
    EXPECT_TRUE(logHolds(mPath + "\": line 1: the zone comes before the names of the variables")) << logText();
    EXPECT_TRUE(mParser.doImport("table", mPath + ".missing", "curve"));
    EXPECT_TRUE(mParser.getObjects().isEmpty());
    EXPECT_TRUE(logHolds(mPath + ".missing"));

    const QString pipe = path("pipe");
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    EXPECT_TRUE(mParser.doImport("text", pipe, "note")) << "and without waiting for a writer";
    EXPECT_TRUE(mParser.doImport("text", "/dev/zero", "note")) << "and without reading for ever";
    EXPECT_TRUE(mParser.getObjects().isEmpty());
    EXPECT_TRUE(logHolds(pipe) && logHolds("/dev/zero"));
}
