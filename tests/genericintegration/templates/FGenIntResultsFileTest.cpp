#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FHistory.h"
#include "tests/support/FModelTest.h"

namespace {

class FGenIntResultsFileTest : public FDirectTest {
 protected:
    void add(const QString& name) { file->addValue(name, 0, 0, QString(), QStringLiteral("Last"), false, {}); }
    QString history() const { return file->getValues().toHistoryString(); }

    FGenIntResultsFile* file = FGenIntResultsFile::create(QStringLiteral("out1"));
};

TEST_F(FGenIntResultsFileTest, generatedNamesCountTheList) {
    for (int i = 0; i < 11; ++i) {
        add(QString());
    }
    EXPECT_EQ(file->getValue("resultsvalue_00")->mName, "ResultsValue_00");
    EXPECT_EQ(file->getCurValue()->mName, "ResultsValue_10");
    file->setCurValue(file->getValue("ResultsValue_00"));
    file->deleteCurrentValue();
    add(QString());
    EXPECT_EQ(file->getCurValue()->mName, "ResultsValue_10");  // a second one of that name
}

TEST_F(FGenIntResultsFileTest, aTakenNameGetsASuffix) {
    add("Cd");
    add("Cl");
    EXPECT_EQ(file->setCurValueName("cd"), "cd_01");
    EXPECT_EQ(file->setCurValueName("cd_01"), "cd_01");
    // Only the case differs: the value finds itself.
    EXPECT_EQ(file->setCurValueName("CD_01"), "CD_01_01");
    EXPECT_EQ(FHistory::instance()->getLabels().last(), "Set results value name");
    FHistory::instance()->undo();
    EXPECT_EQ(file->getCurValue()->mName, "cd_01");
}

TEST_F(FGenIntResultsFileTest, theCursorAnswersForARemovedValue) {
    file->addValue("a", 4, 2, "x", "first", true, FExpr<FUnsigned>(new FUnsigned(3)));
    file->deleteCurrentValue();
    EXPECT_EQ(file->getValues()->count(), 0);
    EXPECT_EQ(file->getCurLine(), 4);
    EXPECT_EQ(file->getCurNumAverageRows()->getValue(), 3U);
}

TEST_F(FGenIntResultsFileTest, setValuesRestoresListsAndBlanksObjects) {
    run("out1.setValues([[\"q\\\"\\\\\", -2, 3, \"a,b\", First, \"FFileName\", \"tecplot\", 1, 7], [\"v\", 0, 1, \"\", "
        "\"last\", \"FNoSuchClass\", \"\"], [1, 2]])");
    EXPECT_EQ(history(),
              "[[\"q\\\"\\\\\",-2,3,\"a,b\",\"First\",\"FFileName\",\"tecplot\",1,7],"
              "[\"v\",0,1,\"\",\"Last\",\"FDouble\",\"\",0,NULL],[\"\",0,0,\"\",\"Last\",\"FDouble\",\"\",0,NULL]]");
    EXPECT_TRUE(logHolds("value 1, \"v\", of out1 has the type \"FNoSuchClass\""));
    EXPECT_TRUE(logHolds("value 2 of out1 has 2 elements instead of 7 or 9"));
    EXPECT_EQ(log().size(), 2);
    EXPECT_EQ(file->getValues()->at(0).toString(), "[\"q\"\\\",-2,3,\"a,b\",First,\"FFileName\",\"tecplot\",1,7]");
    EXPECT_EQ(file->getValues()->at(1).toString(), "[\"v\",0,1,\"\",Last,\"\",\"\",0,NULL]");
    EXPECT_EQ(file->getCurValue()->mName, "q\"\\");

    const QString allRows = "[[\"v\",0,0,\"\",\"Last\",\"FDouble\",\"\",1,4294967295]]";
    run("out1.setValues(" + allRows + ")");
    EXPECT_EQ(history(), allRows);
    const auto* copy = dynamic_cast<FGenIntResultsFile*>(file->clone());
    EXPECT_EQ(copy->getValues()->count(), 1);
    EXPECT_EQ(log().size(), 2) << "a copy isn't told of";
    run("out1.setValues([[\"flow\", \"-1\", 0, \"\", Last, \"FDouble\", \"\"], [\"v\", 0, 1.5, \"\", Last, "
        "\"FDouble\", \"\"]])");
    EXPECT_TRUE(logHolds("value 0, \"flow\", of out1 has the line \"-1\", which isn't a number, and takes 0"))
        << logText();
    EXPECT_TRUE(logHolds("value 1, \"v\", of out1 has the column 1.5, which isn't a whole number, and takes 1"));
    const QString odd =
        "[[\"flow\",\"-1\",0,\"\",\"Last\",\"FDouble\",\"\",0,NULL],[\"v\",0,1.5,\"\",\"Last\",\"FDouble\",\"\",0,NULL]"
        "]";
    EXPECT_EQ(history(), odd) << "the check still reports it after the next opening";
    FExpr<FGenIntResultsFileValue>(file->getValues()->at(0))->mLine = 3;
    EXPECT_EQ(history(), QString(odd).replace("\"-1\"", "3"));
    run("out1.setValues([\"v\", [\"v\", 0, 0, \"\", \"Frist\", \"FDouble\", \"\"]])");
    EXPECT_TRUE(logHolds("test:1:6: setValues: value 0 of out1 is no list"));
    EXPECT_TRUE(logHolds("value 1, \"v\", of out1 has the occurrence \"Frist\""));
    EXPECT_EQ(FExpr<FGenIntResultsFileValue>(copy->getValues()->at(0))->mName, "");
    run("out1.setValues([[\"v\", 0, 0, \"\", Last, \"FDouble\", \"\", 1, readText(\"none\"), \"\"]])");
    EXPECT_FALSE(logHolds("can't read")) << "rows that come from a file are known only in a run";
}

TEST_F(FGenIntResultsFileTest, olderSeparatorNamesEndFindNumbersMode) {
    run("out1.setSpaceSeparator(false)\nout1.setTabSeaparator(false)\nout1.setRegExpSeparator(\"\")");
    EXPECT_TRUE(file->getNumberSeparator());
    run("out1.setRegExprSeparator(\",\")");
    EXPECT_TRUE(file->getNumberSeparator());
    run("out1.setRegExpSeparator(\";\")");
    EXPECT_FALSE(file->getNumberSeparator());
    run("out1.setNumberSeparator(true)\nout1.setTabSeaparator(true)");
    EXPECT_FALSE(file->getNumberSeparator());
    EXPECT_TRUE(file->getSpacesAndTabsSeparator());
}

TEST(GenIntAnchorOccurrenceTest, textsAndNumbers) {
    using Occurrence = FEnum<GenIntAnchorOccurrence>;
    EXPECT_EQ(Occurrence().get(), GenIntAnchorOccurrence::Last);
    EXPECT_EQ(Occurrence().getStringValues(), (QStringList{"First", "Last"}));
    Occurrence occurrence(QStringLiteral("first"));  // compared with regard to case: the default
    EXPECT_EQ(occurrence.get(), GenIntAnchorOccurrence::Last);
    EXPECT_TRUE(occurrence.setValue(QStringLiteral("FIRST")));
    EXPECT_TRUE(occurrence == QStringLiteral("\"First\""));
    EXPECT_FALSE(occurrence.setValue(QStringLiteral("middle")));
    EXPECT_EQ(occurrence.get(), GenIntAnchorOccurrence::First);
    occurrence.FEnumBase::setValue(7U);
    EXPECT_EQ(occurrence.getStringValue(), "[KEY-OUT-OF-RANGE]");
}

}  // namespace
