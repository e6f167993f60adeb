#include "host/lodm/FTecplotText.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include <cmath>

namespace {

using Rows = QVector<QVector<double>>;

TEST(FTecplotTextTest, zonesAreReadInBothPackings) {
    const FTecplotText read = FTecplotText::read(
        "# made by a solver\n"
        "TITLE = \"Flow, steady\"\n"
        "variables = \"x [m]\" p,\n  'U'\n"
        "DATASETAUXDATA solver = \"v 2\"\n"
        "ZONE T=\"inlet\", I=2, DT=(SINGLE SINGLE SINGLE) AUXDATA kind = \"wall\"\n"
        "1 2. -3e1 # first\n1.5D-01, NaN 5\n"
        "zone t='block' i=2 j=1 f=block\n1 2\n2*7\n5 6\n"
        "ZONE N=3 E=1 ZONETYPE=FETRIANGLE DATAPACKING=POINT\n1 1 1\n2 2 2\n3 3 3\n1 2 3\n"
        "ZONE T=\"rest\"\n4 5 6\n7 8 9");
    ASSERT_EQ(read.fault, QString()) << read.faultLine;
    EXPECT_EQ(read.title, "Flow, steady");
    EXPECT_EQ(read.variables, QStringList({"x [m]", "p", "U"}));
    ASSERT_EQ(read.zones.size(), 4);
    EXPECT_EQ(read.zones[0].title, "inlet");
    EXPECT_EQ(read.zones[0].rows[0], QVector<double>({1, 2, -30}));
    EXPECT_EQ(read.zones[0].rows[1][0], 0.15);
    EXPECT_TRUE(std::isnan(read.zones[0].rows[1][1]));
    EXPECT_EQ(read.zones[1].rows, Rows({{1, 7, 5}, {2, 7, 6}}));
    EXPECT_EQ(read.zones[2].rows, Rows({{1, 1, 1}, {2, 2, 2}, {3, 3, 3}}));
    EXPECT_EQ(read.zones[2].title, "");
    EXPECT_EQ(read.zones[3].rows, Rows({{4, 5, 6}, {7, 8, 9}})) << "the number of points is that of the numbers";
}

struct Row {
    const char* text;
    int line;
    const char* fault;  //!< a part of it
};

TEST(FTecplotTextTest, invalidFilesAreReportedWithTheirLine) {
    const Row rows[] = {
        {"", 1, "no zone"},
        {"TITLE \"a\"\n", 1, "\"=\""},
        {"VARIABLES = x\n\nZONE I=2\n1\n", 5, "1 of 2 numbers"},
        {"VARIABLES = x\nZONE I=2\n1 two\n", 3, "1 of 2 numbers"},
        {"VARIABLES = x\nZONE I=1\n1 2\nthree\n", 4, "\"three\""},
        {"VARIABLES = x y\nZONE\n1 2\n3\n", 5, "1 of 2 numbers"},
        {"VARIABLES = x\nZONE I=2\n3*1\n", 3, "too many"},
        {"VARIABLES = x\nZONE I=99999 J=99999 K=99999\n1\n", 3, "more than"},
        {"VARIABLES = x\nZONE\n999999999*1\n", 3, "too many"},
        {"VARIABLES = x\nZONE F=BLOCK\n1\n", 3, "how many points"},
        {"VARIABLES = x\nZONE I=two\n1\n", 2, "\"two\""},
        {"VARIABLES = x\nZONE I=-1\n1\n", 2, "\"-1\""},
        {"VARIABLES = x\nZONE T=\"a\"\nI=1 F=LIST\n1\n", 3, "\"LIST\""},
        {"VARIABLES = x\nZONE I=1 VARLOCATION=([1]=CELLCENTERED)\n1\n", 2, "centres"},
        {"VARIABLES = x\nZONE N=2 E=1 ET=LINESEG F=FEPOINT\n1 2\n1\n", 5, "1 numbers of nodes"},
        {"ZONE I=1\n1\n", 2, "names of the variables"},
        {"VARIABLES = x\nGEOMETRY X=1\n", 2, "\"GEOMETRY\""},
    };
    for (const Row& row : rows) {
        const FTecplotText read = FTecplotText::read(row.text);
        EXPECT_EQ(read.faultLine, row.line) << row.text << read.fault.toStdString();
        EXPECT_TRUE(read.fault.contains(row.fault)) << row.text << read.fault.toStdString();
    }
}

// Blanks, commas, line ends and comments separate alike, and both packings give the same table.
TEST(FTecplotTextTest, randomTablesComeBack) {
    const QStringList blanks{" ", "\n", " , ", "\t", "\r\n", " # 7 \"\n"};
    for (int seed = 0; seed < randomCases(500); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        const int variables = random.bounded(1, 5);
        Rows rows(random.bounded(1, 6));
        for (QVector<double>& row : rows) {
            for (int variable = 0; variable < variables; ++variable) {
                row.append(random.bounded(2000.0) - 1000);
            }
        }
        const bool isBlock = random.bounded(2) == 0;
        QString text = "VARIABLES =";
        for (int variable = 0; variable < variables; ++variable) {
            text += QString(" \"v%1\"").arg(variable);
        }
        text += QString("\nZONE I=%1 DATAPACKING=%2").arg(rows.size()).arg(isBlock ? "BLOCK" : "POINT");
        for (int i = 0; i < variables * rows.size(); ++i) {
            const double number = isBlock ? rows[i % rows.size()][i / rows.size()] : rows[i / variables][i % variables];
            text += blanks[random.bounded(blanks.size())] + QString::number(number, 'g', 17);
        }
        const FTecplotText read = FTecplotText::read(text);
        ASSERT_EQ(read.fault, QString()) << text.toStdString();
        ASSERT_EQ(read.zones.size(), 1);
        ASSERT_EQ(read.zones[0].rows, rows) << text.toStdString();
    }
}

}  // namespace
