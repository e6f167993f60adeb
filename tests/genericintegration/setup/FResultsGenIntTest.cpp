#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/run/FNumberCheck.h"
#include "host/run/FSuccessRules.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

#include <bit>
#include <cmath>
#include <utility>

namespace {

class FResultsGenIntTest : public FIntegrationTest {
 public:
    FResultsGenIntTest() { EXPECT_TRUE(run("ok = comp.run()")) << logText(); }

 protected:
    static FExpr<FGenIntFile> file(const QString& name) { return FExpr<FGenIntFile>(object<FGenIntFile>(name)); }
};

}  // namespace

TEST_F(FResultsGenIntTest, readsNumbersOfTheFirstTable) {
    write("Out.txt", "f 4 9\n");
    EXPECT_EQ(results()->getAverageOfLastRows(2, 0), 6.5);
    results()->getData("Out.txt")->setAllHorizontalHeaders({"x"});
    for (const QString call : {"getDataAt(1,0)", "getDataAt(\"g\",0)", "getDataAt(1.9,\"x\")", "getDataAt(\"g\",\"x\")",
                               "getLastDataOfRow(1)", "getLastDataOfColumn()"}) {
        EXPECT_EQ(textOf("comp.getResults()." + call), "9") << call.toStdString();
    }
    EXPECT_EQ(textOf("comp.getResults().getDataAt(5,0)"), "NaN");
    EXPECT_EQ(textOf("comp.getResults().getAverageOfLastRows(0)"), "NaN");
    EXPECT_TRUE(logHolds("getAverageOfLastRows: 0 rows have no mean")) << logText();
    EXPECT_EQ(textOf("comp.getResults().getDataAt(\"s\",0)"), "NaN") << "it is in the second table";
    EXPECT_EQ(textOf("comp.getResults().getDataAt(comp,0)"), "NULL");
}

TEST_F(FResultsGenIntTest, isNanWithoutTemplates) {
    results()->setOutputHandles({});
    for (const double number : {results()->getDataAt("f", 0U), results()->getDataAt(0.0, "x"),
                                results()->getLastDataOfRow(0), results()->getAverageOfLastRows(1, 0)}) {
        EXPECT_EQ(std::bit_cast<quint64>(number), Q_UINT64_C(0x7FF8000000000000));
    }
    EXPECT_FALSE(results()->getData("Out.txt"));
    results()->setOutputHandles({file("input"), file("console"), nullptr});
    EXPECT_EQ(results()->getDataAt("s", 0U), 2) << "what is no result template is passed over";
}

TEST_F(FResultsGenIntTest, findsTablesByFileAndByTemplate) {
    EXPECT_FALSE(results()->getData("out.txt")) << "a file's name has its case";
    EXPECT_EQ(results()->getData("SQUARE")->getName(), "Out.txt");
    EXPECT_EQ(results()->getData("Console")->getName(), "stdout.txt");

    EXPECT_EQ(results()->getResultTemplateName("Out.txt"), computation()->getWorkingPath() + "Out.txt");
    EXPECT_EQ(results()->getResultTemplateName("sub/in.txt"), "");
}

TEST_F(FResultsGenIntTest, readsOnceUntilSomethingChanges) {
    EXPECT_EQ(results()->getDataAt("f", 0U), 4);
    write("Out.txt", "f 5\n");
    EXPECT_EQ(results()->getDataAt("f", 0U), 4);
    results()->setOutputHandles(results()->getOutputHandles());
    EXPECT_EQ(results()->getDataAt("f", 0U), 5);
    EXPECT_EQ(results()->getTableNames().size(), 2) << "tables of the reading before are gone";
    write("Out.txt", "f 6\n");
    ASSERT_TRUE(run("square.setContent(\"f 1\")"));
    EXPECT_EQ(results()->getDataAt("f", 0U), 6) << "a changed template has the file read again";

    write("Out.txt", "");
    results()->setOutputHandles(results()->getOutputHandles());
    EXPECT_TRUE(std::isnan(results()->getDataAt("f", 0U)));
    EXPECT_TRUE(results()->getData("Out.txt"));
}

TEST_F(FResultsGenIntTest, reportsSuspiciousAndMissingNumbersOncePerReading) {
    write("Out.txt", "title\nf -5.013907D-01\n");
    EXPECT_EQ(results()->getDataAt("f", 0U), -5.013907);
    EXPECT_EQ(results()->getDataAt("g", 0U), -1);
    ASSERT_TRUE(logHolds("2 values: 2 suspicious: \"f\" -5.013907 is followed by D-01; \"g\" -1 ")) << logText();
    EXPECT_EQ(log().size(), 1);
    results()->setOutputHandles(results()->getOutputHandles());
    EXPECT_EQ(results()->getDataAt("f", 0U), -5.013907);
    EXPECT_EQ(log().size(), 1) << "the same message isn't repeated";
    write("Out.txt", "title\nf abc\n");
    write("stdout.txt", "3");
    results()->setOutputHandles(results()->getOutputHandles());
    results()->detachFromFiles();
    EXPECT_EQ(log().size(), 1) << "nobody has requested a number";
    EXPECT_TRUE(std::isnan(results()->getDataAt("f", 0U)));
    EXPECT_TRUE(logHolds("2 values: 2 without a number: \"f\": line 2 ends before the column; \"g\"")) << logText();
    EXPECT_TRUE(
        logHolds("\"s\" 3 was read from line 1, counted from the top of the file, since the anchor \"said\" "
                 "isn't in the file"))
        << logText();
}

TEST_F(FResultsGenIntTest, answersQueriesOfScripts) {
    ASSERT_TRUE(
        run("square.setValues([[\"f\", 0, 0, \"force\", First, \"FDouble\", \"\"],"
            "[\"mean\", 0, 1, \"\", Last, \"FDouble\", \"\", 1, 2], [\"a,b\", 9, 0, \"\", Last, \"FDouble\", \"\"]])"));
    write("Out.txt", "  Force 1.5E +02\nx 1 2\nx 1 4.50\n");
    const std::pair<const char*, const char*> cases[] = {
        {"getOrigin(\"f\")", "Out.txt:1:9 \"1.5\" (blank before exponent)"},
        {"getOrigin(\"f\").get(\"line\")", "1"},
        {"getOrigin(\"f\").get(\"anchorColumn\")", "3"},
        {"getOrigin(\"a,b\").get(\"number\")", "2"},
        {"getOrigin(\"a,b\").get(\"flags\").at(0)", "line beyond end"},
        {"getOrigin(\"mean\").get(\"rows\")", "[Out.txt:2:5 \"2\",Out.txt:3:5 \"4.50\"]"},
        {"getOrigin(\"mean\").get(\"rows\").at(1).get(\"value\")", "4.5"},
        {"getText(\"mean\")", "4.50"},
        {"getText(0).length()", "4"},
        {"getColumn()", "[3.25,NaN,1.5]"},
        {"toCsv()", "name,value\nmean,3.25\n\"a,b\",NaN\nf,1.5\n"},
        {"getListing()",
         "name  value  place        text  flags\nmean  3.25   Out.txt:3:5  4.50  mean of 2 rows\n"
         "a,b   NaN    Out.txt            line beyond end\nf     1.5    Out.txt:1:9  1.5   blank before exponent\n"},
    };
    for (const auto& [query, text] : cases) {
        EXPECT_EQ(textOf(QString("comp.getResults().getTableAt(0).") + query), text) << query;
    }
    EXPECT_EQ(textOf("comp.getResults().getTableAt(1).getRowNames()"), "[s]");
    EXPECT_EQ(textOf("comp.getResults().getTableAt(2)"), "NULL");
    EXPECT_EQ(textOf("preview(square)"),
              "name  value  place        text  flags\nf     0      Out.txt:1:3  0     anchor missing\n"
              "mean  NaN    Out.txt:1          column missing, fewer rows\n"
              "a,b   NaN    Out.txt            line beyond end\n");
    EXPECT_EQ(textOf("comp.getResults().getDataAt(\"meen\", 0)"), "NaN");
    EXPECT_TRUE(logHolds("Out.txt has no value \"meen\" (did you mean \"mean\"?)"));
    EXPECT_EQ(textOf("comp.getResults().getTableAt(0).getElementAt(1, 3)"), "NaN");
    EXPECT_TRUE(logHolds("Out.txt has no column 3; it has 3 rows and 1 columns")) << logText();
}

TEST_F(FResultsGenIntTest, tellsThatNumbersAreOfAnEarlierSetUp) {
    const QString table = "comp.getResults().getTable(\"Out.txt\")";
    ASSERT_TRUE(run("genericIntegrationComputation fresh() {}"));
    EXPECT_EQ(textOf("fresh.getResults().getTable(\"Out.txt\")"), "NULL");
    EXPECT_TRUE(logHolds("getResults() of \"fresh\" returned nothing; fresh has no results yet: run it first"));
    FTestFolder::write("m.dat", "1");
    ASSERT_TRUE(run("def.addEntry(\"mesh\", inputFile(\"m.dat\"))\nok = comp.run()"));
    EXPECT_EQ(textOf(table + ".getElementAt(\"f\")"), "4");
    EXPECT_FALSE(logHolds("earlier set-up")) << logText();
    ASSERT_TRUE(run("conf.setEntryValue(\"x\", 3)"));
    EXPECT_EQ(textOf(table + ".getElementAt(\"f\") + comp.getResults().getDataAt(\"f\", 0)"), "8");
    EXPECT_EQ(log().filter("the numbers of Out.txt are of an earlier set-up (x was 2, is 3). ").size(), 1) << logText();
    EXPECT_EQ(textOf("comp.getResults().getTable(\"stdout.txt\").getText(0)"), "2");
    EXPECT_EQ(log().filter("the numbers of stdout.txt are of an earlier set-up").size(), 1) << logText();
    EXPECT_TRUE(textOf(table + ".getListing()").contains("earlier set-up"));
    ASSERT_TRUE(run("conf.setEntryValue(\"x\", 2)"));
    EXPECT_FALSE(textOf(table + ".getListing()").contains("earlier set-up"));
    FTestFolder::write("m.dat", "2");
    EXPECT_EQ(textOf("comp.getResults().getSetUpChanges()"), "[file of mesh changed]");
    FTestFolder::write("m.dat", "1");
    ASSERT_TRUE(run("comp.setEnvironment([\"A=1 B\"])\nok = comp.run()\ncomp.setEnvironment([\"A=1\", \"B\"])"));
    EXPECT_EQ(textOf("comp.getResults().getSetUpChanges()"), "[environment was \"A=1 B\", is A=1 B]");
    const QString program = FTestFolder::path("program.sh");
    FTestFolder::write("program.sh", "echo > written");
    ASSERT_TRUE(
        run("comp.setExecutable(\"sh\"); comp.setArguments([\"" + program + "\", \"written\"]); ok = comp.run()"));
    EXPECT_EQ(textOf("comp.getResults().getSetUpChanges()"), "[]");
    FTestFolder::write("program.sh", "echo 2 > written");
    EXPECT_EQ(textOf("comp.getResults().getSetUpChanges()"), "[file " + program + " changed]");
    ASSERT_TRUE(
        run("genericIntegrationCommandFile one() { .setFileName(\"one\") }\n"
            "genericIntegrationCommandFile two() { .setFileName(\"two\") }\n"
            "def.setFiles([one, two])\nok = comp.run()\ndestroy(one)\ndestroy(two)"));
    const QString state = textOf("comp.getResults().getState()");
    EXPECT_TRUE(state.contains("input file one") && state.contains("input file two")) << state.toStdString();
}

TEST_F(FResultsGenIntTest, keepsWhatImportsBring) {
    const QString value = "[[\"field\", 0, 0, \"\", First, \"FFileName\", \"%1\", 0, NULL]]";
    ASSERT_TRUE(
        run("square.setNumberSeparator(false); square.setRegExprSeparator(\";\")\n"
            "console.setNumberSeparator(false); console.setRegExprSeparator(\";\")\n"
            "square.setValues(" +
            value.arg("table") + ")\nconsole.setValues(" + value.arg("text") + ")"));
    write("Out.txt", "curve.txt;");
    write("stdout.txt", "note.txt;");
    write("curve.txt", "1 2\n3 4\n");
    write("note.txt", "seen");
    results()->setOutputHandles({file("square")});
    const FExpr<FTableData> curve(results()->getImportedObjects().value("field"));
    ASSERT_TRUE(curve) << logText();
    EXPECT_EQ(curve->getElementAt(1, 0), 3);
    EXPECT_EQ(textOf("comp.getResults().getImportedObject(\"field\").getElementAt(1, 0)"), "3");
    EXPECT_EQ(textOf("comp.getResults().getImportedObjectNames()"), "[field]");
    results()->setOutputHandles({file("square"), file("console")});
    EXPECT_EQ(results()->getImportedObjects().value("field").toString(), "seen") << "the later template wins";
}

TEST_F(FResultsGenIntTest, hasTheZonesOfImportsAsTables) {
    ASSERT_TRUE(
        run("square.setNumberSeparator(false); square.setRegExprSeparator(\";\")\n"
            "square.setValues([[\"flow\", 0, 0, \"\", First, \"FFileName\", \"tecplot\", 0, NULL]])"));
    write("Out.txt", "flow.dat;");
    write("stdout.txt", "said 7");
    write("flow.dat", "VARIABLES = x p\nZONE T=wall\n0 1\n1 2\nZONE T=wall I=1\n3 4\nZONE I=1\n5 6\n");
    results()->setOutputHandles({file("square"), file("console")});
    EXPECT_EQ(results()->getTableNames(), QStringList({"Out.txt", "stdout.txt", "flow|wall", "flow|wall_01", "flow|3"}))
        << logText();
    EXPECT_EQ(textOf("comp.getResults().getTable(\"flow|wall\").getElementAt(1, \"p\")"), "2");
    EXPECT_EQ(textOf("comp.getResults().getTable(\"flow|3\").getElementAt(0, \"x\")"), "5");
    EXPECT_EQ(textOf("comp.getResults().getTableAt(3).getElementAt(0, 1)"), "4");
    EXPECT_EQ(log(), QStringList()) << "the name of a file needn't be a number";
    FSuccessRules rules;
    rules.requiredValues = QStringList{FSuccessRules::allValues()};
    EXPECT_EQ(FNumberCheck::faults(rules, results()->listedTables()), QStringList());
}

TEST_F(FResultsGenIntTest, hasNoPathsOfFilesThatAreGone) {
    FResultsGenInt* held = results();
    EXPECT_TRUE(held->getResultTemplateName("Out.txt").endsWith("/comp/Out.txt"));
    held->detachFromFiles();
    EXPECT_EQ(held->getResultTemplateName("Out.txt"), "");
}

TEST_F(FResultsGenIntTest, savesResultsOfADesign) {
    EXPECT_EQ(saved(*results()), "");
    auto* design = new FDesign("d7");
    design->registerObject();
    const int id = computation()->getDbId();
    FResultsGenInt* made = FResultsGenInt::create("r", FExpr<FDesign>(design), id);
    EXPECT_EQ(made->getComputation().ptr(), computation());
    made->setOutputHandles({file("square"), file("console")});
    made->addDocu("a \"good\" one", 1);
    made->addDocu("", 2);
    const QString text = saved(*made);
    EXPECT_EQ(text, QString("\ngenericIntegrationResults r(d7,%1) {\n"
                            "    .addDocu(\"a \\\"good\\\" one\",DocuDescription);\n"
                            "    .setOutputHandles([square,console]);\n}\n")
                        .arg(id));
    made->setConfigurationHandle(FExpr<FManaged>(design));
    EXPECT_TRUE(saved(*made).startsWith("\n&genericIntegrationResults r(d7,"));
    EXPECT_TRUE(made->getResultPath().endsWith("/d7/comp/")) << made->getResultPath().toStdString();
    ASSERT_TRUE(run("genericIntegrationResults lost(d7, 4711) {}"));
    auto* lost = object<FResultsGenInt>("lost");
    EXPECT_EQ(lost->getResultTemplateName("Out.txt"), "");
    EXPECT_EQ(lost->getResultPath(), "");
    lost->setOutputHandles({file("square")});
    EXPECT_TRUE(std::isnan(lost->getDataAt("f", 0U))) << "not the number of the sample text";
    ASSERT_TRUE(run("genericIntegrationResults bad(comp) {}"));
    EXPECT_FALSE(object<FManaged>("bad"));
}
