#include "host/run/FTableData.h"
#include "host/script/FCmdInput.h"
#include "tests/support/FModelTest.h"

#include <bit>
#include <cmath>

namespace {

class FTableDataTest : public FModelTest {
 protected:
    FTableDataTest() {
        mTable->setData({{1, 2, 3}, {4, 5}, {}, {7, 8, 9}});
        mTable->setAllVerticalHeaders({"a", "b", "a", "last", "beyond"});
        mTable->setAllHorizontalHeaders({"x", "y", "x"});
        mShown = mTable;
    }

    FTableData* mTable = new FTableData("out.dat");
    FExpr<FTableData> mShown;
};

}  // namespace

TEST_F(FTableDataTest, whatIsNotThereIsTheQuietNan) {
    bool found = true;
    EXPECT_TRUE(std::isnan(mTable->getElementAt(1, 2, &found)) && !found) << "a row that is shorter than others";
    for (const double number :
         {mTable->getElementAt(-1, 0), mTable->getElementAt(0, -1), mTable->getElementAt(4, 0),
          mTable->getElementAt("A", 0), mTable->getElementAt("beyond", 0), mTable->getElementAt(0, "z"),
          mTable->getLastElementOfRow(2), mTable->getLastElementOfRow(9), mTable->getLastElementOfColumn(3),
          mTable->getAverageOfLastRows(0, 0), mTable->getAverageOfLastRows(-2, 0),
          FTableData("empty").getAverageOfLastRows(1, 0), FTableData("blank", 2, 2).getElementAt(1, 1)}) {
        EXPECT_EQ(std::bit_cast<quint64>(number), Q_UINT64_C(0x7FF8000000000000)) << number;
    }
}

TEST_F(FTableDataTest, averagesTheLastRows) {
    FTableData table("t");
    table.setData({{1}, {2}, {6}});
    EXPECT_EQ(table.getAverageOfLastRows(2, 0), 4);
    EXPECT_EQ(table.getAverageOfLastRows(50, 0), 3) << "all of them, if there are fewer";
    EXPECT_TRUE(std::isnan(mTable->getAverageOfLastRows(2, 0))) << "a row without that column";
}

TEST_F(FTableDataTest, takesTheFirstFormThatFitsInAScript) {
    const auto textOfCall = [this](const QString& call) {
        FCmdInput input;
        input.setVariable("t", mShown);
        QString text = "result = t." + call;
        QTextStream stream(&text);
        input.readInputString(stream);
        EXPECT_TRUE(input.exec()) << text.toStdString();
        return input.getNames().find("result").toString();
    };
    EXPECT_EQ(textOfCall("getElementAt(3)"), "7");
    EXPECT_EQ(textOfCall("getElementAt(\"a\", 2)"), "3") << "the first of equal row headers";
    EXPECT_EQ(textOfCall("getElementAt(\"last\", \"x\")"), "7") << "the first of equal column headers";
    EXPECT_EQ(textOfCall("getElementAt(1.9, \"y\")"), "5") << "a row is truncated";
    EXPECT_EQ(textOfCall("getElementAt(1e300, \"y\")"), "NaN");
    EXPECT_EQ(textOfCall("getElementAt(4294967295, 0)"), "NaN");
    EXPECT_EQ(textOfCall("getElementAt(1.5)"), "NULL");
}
