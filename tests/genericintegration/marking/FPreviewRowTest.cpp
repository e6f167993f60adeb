#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/marking/FPreviewRow.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/run/FTableData.h"
#include "tests/support/FModelTest.h"

namespace {

using FPreviewRowTest = FDirectTest;
using State = FPreviewRow::State;

struct Row {
    const char* header;
    const char* type;
    const char* value;
    State state;
    const char* reason;  //!< a part of it
    bool isNotANumber;
    bool canBeParameter;
};

TEST_F(FPreviewRowTest, rowsTellWhatTheReaderFound) {
    ASSERT_TRUE(run(R"(
genericIntegrationResultsFile out() {
    .setContent("drag 1.23456789 plot.dat
lift 1.5D-01")
    .setNumberSeparator(false)
    .setSpacesAndTabsSeparator(true)
    .setValues([["d", 0, 0, "drag", First, "FDouble", "", 0, NULL], ["f", 0, 1, "drag", First, "FFileName", "", 0, NULL],
                ["l", 0, 0, "lift", First, "FDouble", "", 0, NULL], ["", 7, 0, "lift", First, "FDouble", "", 0, NULL]])
}
genericIntegrationResultsFile number() {
    .setContent("lift 1.5D-01")
    .setValues([["n", 0, 0, "lift", First, "FDouble", "", 0, NULL]])
}
)")) << logText();
    FTableData table;
    FGenIntReader::instance()->parseFile(FExpr<FGenIntResultsFile>(object<FGenIntResultsFile>("out")), &table, "");
    FTableData numbers;
    FGenIntReader::instance()->parseFile(FExpr<FGenIntResultsFile>(object<FGenIntResultsFile>("number")), &numbers, "");
    const Row rows[] = {
        {"d", "FDouble", "1.23457", State::Found, "", false, true},
        {"f", "FFileName", "plot.dat", State::Found, "", false, false},
        {"l", "FDouble", "not a number", State::Missing, "1.5D-01", true, false},
        {"4", "FDouble", "not a number", State::Missing, "beyond the end", true, false},
        {"n", "FDouble", "1.5", State::Suspicious, "D-01", false, true},
    };
    int number = 0;
    for (const Row& row : rows) {
        const bool isOfTable = number < table.getRowCount();
        const FPreviewRow preview(isOfTable ? table : numbers, isOfTable ? number : 0);
        EXPECT_EQ(preview.header, row.header);
        EXPECT_EQ(preview.type, row.type);
        EXPECT_EQ(preview.value, row.value);
        EXPECT_EQ(preview.state, row.state) << row.header;
        EXPECT_TRUE(preview.reason.contains(row.reason)) << preview.reason.toStdString();
        EXPECT_EQ(preview.reason.isEmpty(), *row.reason == '\0') << preview.reason.toStdString();
        EXPECT_EQ(preview.isNotANumber, row.isNotANumber) << row.header;
        EXPECT_EQ(preview.canBeParameter, row.canBeParameter) << row.header;
        ++number;
    }
    EXPECT_EQ(FPreviewRow(table, 2).toolTip, "row index:2,column index:0");
}

}  // namespace
