#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/run/FTableData.h"
#include "host/run/FValueRemark.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <QFile>

#include <sys/stat.h>

#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace {

/** A number of rows whose evaluation does something first. */
class FBusyRows : public FUnsigned {
 public:
    explicit FBusyRows(std::function<void()> task) : FUnsigned(1), mTask(std::move(task)) {}
    FObject* getValueObject() const override {
        mTask();
        return FUnsigned::getValueObject();
    }

 private:
    std::function<void()> mTask;
};

class FGenIntReaderTest : public FDirectTest {
 protected:
    void setValues(const QString& values) { ASSERT_TRUE(run("out1.setValues(" + values + ")")); }
    void parse(const QString& directory) const { FGenIntReader::instance()->parseFile(file, table.ptr(), directory); }

    FTestFolder folder;
    FExpr<FGenIntResultsFile> file{FGenIntResultsFile::create("out1")};
    FExpr<FTableData> table{new FTableData("out.dat")};
};

TEST_F(FGenIntReaderTest, theTableHoldsNamesNumbersAndTypesInTheOrderOfTheFile) {
    setValues(
        "[[\"late\",0,0,\"beta\",Last,\"FDouble\",\"\"],[\"none\",0,5,\"beta\",Last,\"FDouble\",\"\"],"
        "[\"first\",0,1,\"ALPHA\",First,\"FNoClass\",\"\"],[\"word\",0,0,\"alpha\",First,\"FString\",\"\"]]");
    file->setContent("alpha 1 2\nbeta 3\n");
    parse(QString());
    EXPECT_EQ(table->getRowNames(), (QStringList{"word", "first", "late", "none"}));
    EXPECT_EQ(table->getElementAt("first", 0), 2);
    EXPECT_TRUE(std::isnan(table->getElementAt("none", 0)));
    EXPECT_EQ(table->getRowTooltip(0), "FString|1");
    EXPECT_EQ(table->getOrigin(1).column, 9);
    EXPECT_EQ(table->getOrigin(3).flags, FNumberFlags(FNumberFlag::ColumnMissing));
    EXPECT_EQ(FExpr<FGenIntResultsFileValue>(file->getValues()->at(0))->mName, "late")
        << "the template keeps its order";
}

TEST_F(FGenIntReaderTest, theNumberOfAverageRowsMayBeAnExpression) {
    setValues("[[\"mean\",0,0,\"\",Last,\"FDouble\",\"\",true,1]]");
    file->setContent("1\n2\n3\n6\n");
    ASSERT_TRUE(run("parameter n(1)"));
    const FExpr<FGenIntResultsFileValue> value(file->getValues()->at(0));
    const std::pair<const char*, double> cases[] = {{"n+1", 4.5}, {"n*4", 3}, {"n*1.5", NAN}, {"n-2", NAN}};
    for (const auto& [expression, mean] : cases) {
        FExpr<FUnsigned> rows;
        rows = QString(expression);
        ASSERT_TRUE(rows) << expression;
        value->setNumAverageRows(rows);
        parse(QString());
        const double number = table->getElementAt("mean", 0);
        EXPECT_TRUE(number == mean || (std::isnan(number) && std::isnan(mean))) << number << " for " << expression;
    }
}

TEST_F(FGenIntReaderTest, aNumberReadWithoutItsAnchorIsFlagged) {
    setValues(
        "[[\"drag\",1,0,\"Drag\",Last,\"FDouble\",\"\"],[\"none\",0,0,\"Drag\",Last,\"FDouble\",\"\"],"
        "[\"lift\",0,0,\"Lift\",Last,\"FDouble\",\"\"]]");
    file->setFileName("out.dat");
    folder.write("out.dat", "title\nLift 3\n");
    parse(folder.path());
    EXPECT_EQ(table->getElementAt("drag", 0), 3);
    EXPECT_EQ(log(), QStringList()) << "the host reports it";
    const FNumberOrigin drag = table->getOrigin(table->findRow("drag"));
    EXPECT_EQ(drag.flags, FNumberFlags(FNumberFlag::AnchorMissing));
    EXPECT_EQ(FValueRemark::text(drag, 3),
              "was read from line 2, counted from the top of the file, since the anchor \"Drag\" isn't in the file");
    EXPECT_EQ(FValueRemark::text(table->getOrigin(table->findRow("none")), NAN),
              "the anchor \"Drag\" isn't in the file");
    const FNumberOrigin lift = table->getOrigin(table->findRow("lift"));
    EXPECT_EQ((std::vector<qint64>{lift.anchorLine, lift.anchorColumn, lift.valueNumber}),
              (std::vector<qint64>{2, 1, 2}));
}

TEST_F(FGenIntReaderTest, aFileThatCantBeReadLeavesTheTableUnchanged) {
    setValues("[[\"a\",0,0,\"\",Last,\"FDouble\",\"\"]]");
    file->setFileName("out.dat");
    file->setContent("7");
    parse(QString());
    parse(folder.path());
    EXPECT_TRUE(logHolds("FGenIntReader: Could not open file " + folder.path("out.dat") +
                         " for reading. parsing process aborted"));
    ASSERT_EQ(::mkfifo(qPrintable(folder.path("out.dat")), 0600), 0);
    parse(folder.path());
    QFile::remove(folder.path("out.dat"));
    folder.write("out.dat", "");
    parse(folder.path());
    EXPECT_TRUE(logHolds("FGenIntReader: Empty content, nothing to parse. parsing process aborted"));
    file->setFileName("../out.dat");
    parse(folder.path() + "/");
    EXPECT_TRUE(logHolds("leads out of the result directory"));
    EXPECT_EQ(table->getElementAt("a", 0), 7);
    file->setFileName("out.dat");
    folder.write("out.dat", " \n\n");
    parse(folder.path());
    EXPECT_TRUE(std::isnan(table->getElementAt("a", 0)));
}

TEST_F(FGenIntReaderTest, theCacheBetweenFilesNeverChangesAResult) {
    setValues("[[\"a\",0,0,\"x\",First,\"FDouble\",\"\"]]");
    file->setContent("\nx 1;2 y\nx 3;4 y\n");
    const FExpr<FGenIntResultsFileValue> value(file->getValues()->at(0));
    const std::vector<std::pair<std::function<void()>, double>> changes{
        {[&] { value->mOccurrence = GenIntAnchorOccurrence::Last; }, 3},
        {[&] { value->mColumn = 1; }, 4},
        {[&] { value->mAnchor = "y"; }, NAN},
        {[&] { value->mLine = -1; }, 2},
        {[&] { run("out1.setRegExpSeparator(\"1|2\")"); }, NAN},
    };
    for (const auto& [change, wanted] : changes) {
        change();
        parse(QString());
        const double number = table->getElementAt("a", 0);
        EXPECT_TRUE(number == wanted || (std::isnan(number) && std::isnan(wanted))) << number << " for " << wanted;
    }
}

TEST_F(FGenIntReaderTest, anInvalidExpressionSeparatesNothingAndIsFlagged) {
    setValues("[[\"a\",0,1,\"\",Last,\"FDouble\",\"\"],[\"b\",0,0,\"\",Last,\"FDouble\",\"\"]]");
    run("out1.setRegExpSeparator(\"(\")");
    file->setContent("1(2");
    parse(QString());
    EXPECT_TRUE(std::isnan(table->getElementAt("a", 0)));
    EXPECT_TRUE(table->getOrigin(0).flags.testFlag(FNumberFlag::SeparatorInvalid));
    EXPECT_FALSE(table->getOrigin(0).oddity.isEmpty());
}

TEST_F(FGenIntReaderTest, filesAreImportedFromTheDirectoryOnly) {
    setValues("[[\"mesh\",0,0,\"mesh\",Last,\"FFileName\",\"text\",0,NULL]]");
    run("out1.setSpaceSeparator(true)");
    file->setFileName("out.dat");
    file->setContent("mesh grid.txt\n");
    parse(QString());
    EXPECT_TRUE(FGenIntReader::instance()->getImportedObjects().isEmpty());
    EXPECT_EQ(table->getRowTooltip(0), "FFileName|grid.txt");

    folder.write("out.dat", "mesh grid.txt\n");
    folder.write("grid.txt", "1 2");
    parse(folder.path() + "/");
    EXPECT_EQ(FGenIntReader::instance()->getImportedObjects().value("mesh").toString(), "1 2");
    folder.write("out.dat", "mesh ../x\n");
    parse(folder.path() + "/");
    EXPECT_TRUE(FGenIntReader::instance()->getImportedObjects().isEmpty());
    EXPECT_EQ(table->getRowCount(), 1);
}

TEST_F(FGenIntReaderTest, anEvaluationOfRowsThatReadsOtherFilesLeavesNoneOfTheirImports) {
    folder.write("out.dat", "grid.txt\n");
    folder.write("grid.txt", "1 2");
    const FExpr<FGenIntResultsFile> other(FGenIntResultsFile::create("out2"));
    other->setFileName("out.dat");
    run("out2.setValues([[\"mesh\",0,0,\"\",Last,\"FFileName\",\"text\",0,NULL]]); out2.setSpaceSeparator(true)");
    setValues("[[\"mean\",0,0,\"\",Last,\"FDouble\",\"\",true,1]]");
    file->setContent("7\n");
    int imports = 0;
    const FExpr<FObject> rows(new FBusyRows([&] {
        FTableData otherTable;
        FGenIntReader::instance()->parseFile(other, &otherTable, folder.path() + "/");
        imports = FGenIntReader::instance()->getImportedObjects().size();
        run("out1.setValues([])");
    }));
    FExpr<FGenIntResultsFileValue>(file->getValues()->at(0))->setNumAverageRows(FExpr<FUnsigned>(rows));
    parse(QString());
    EXPECT_EQ(imports, 1);
    EXPECT_TRUE(FGenIntReader::instance()->getImportedObjects().isEmpty());
    EXPECT_EQ(table->getElementAt("mean", 0), 7) << "the values at the start of the call are read";
}

}  // namespace
