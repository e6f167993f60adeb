#include "host/core/FHistory.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

class SuccessRulesTest : public FIntegrationTest {
 protected:
    bool runProgram(const QString& program) {
        set(*computation(), "setArguments", QStringList{"-c", program});
        return computation()->run();
    }
};

}  // namespace

// The program writes "f 4" to Out.txt and "said 2" to stdout.txt; "g" is NaN.
TEST_F(SuccessRulesTest, theRuleThatFailedIsTheCause) {
    const QString writes = "echo f 4 > Out.txt; echo said 2; ";
    const struct {
        QString rules, program, message;  // no message: the run succeeds
    } cases[] = {
        {"", writes, ""},
        {".setAllowedExitCodes([0, 3])", writes + "exit 3", ""},
        {".setAllowedExitCodes([3])", writes, "failed with exit code 0 (allowed: 3)"},
        {"", writes + "exit 139", "(128 + 11: most likely a process that it had started was ended by a signal, seg"},
        {".setForbiddenTexts([[\"stdout.txt\", \"NOT CONV\"]])", writes + "echo a; echo NOT CONVERGED",
         "'stdout.txt' contains the forbidden text \"NOT CONV\" in line 3."},
        {".setForbiddenTexts([[\"stdout.txt\", \"NOT CONV\"]])", writes + "echo not converged", ""},
        {".setForbiddenTexts([[\"log\", \"x\"]])", writes, "'log' can't be searched for the text \"x\": No such file"},
        {".setForbiddenTexts([[\"log\", \"x\"]]) .setOptionalFiles([\"./log\"])", writes, ""},
        {".setRequiredTexts([[\"stdout.txt\", \"DONE\"]])", writes, "'stdout.txt' doesn't contain the required text"},
        {".setRequiredTexts([[\"stdout.txt\", \"said 2\"]])", writes, ""},
        {".setRequiredTexts([[\"stdout.txt\", \"DONE\"]])", writes + "exit 2", "failed with exit code 2"},
        {".setRequiredTexts([[\"stdout.txt\", \"DONE\"]])", "exit 0", "doesn't contain the required text"},
        {"", "echo f 4 > out.TXT; echo why; echo said 1",
         "didn't write 'Out.txt'.\nFrom the output of the program:\n    stdout.txt:1: why\n    stdout.txt:2: said 1\n"
         "It wrote files with similar names: 'out.TXT'. Check"},
        {".setOptionalFiles([\"Out.txt\"])", "echo said 1", ""},
        {".setRequiredValues([\"f\", \"s\"])", writes, ""},
        {".setRequiredValues([\"f\", \"g\"])", writes, "A required value is NaN: \"g\" in Out.txt."},
        {".setRequiredValues([\"*\"])", writes, "A required value is NaN: \"g\" in Out.txt."},
        {".setRequiredValues([\"f1\"])", writes, "No result has the required value: \"f1\"."},
        {".setRequiredValues([\"*\"])", "> Out.txt; echo said 2",
         "A required value is NaN: \"f\" in Out.txt; \"g\" in Out.txt."},
        {".setRequiredValues([\"*\"]) .setOptionalFiles([\"Out.txt\"])", "echo said 2", ""},
        {".setRequiredValues([\"f\"]) .setOptionalFiles([\"Out.txt\"])", "echo said 2",
         "A required value is NaN: \"f\""},
        {".setSuspiciousNumbers(\"fail\")", "echo f 4D+05 > Out.txt; echo said 2", "A number is suspicious"},
        {".setSuspiciousNumbers(\"fail\")", writes, ""},
        {".setMissingAnchors(\"fail\")", "echo h 4 > Out.txt; echo said 2", "An anchor is missing"},
        {".setMissingAnchors(\"fail\")", writes, ""},
    };
    const QString defaults =
        "comp.setAllowedExitCodes([0]); comp.setForbiddenTexts([]); comp.setRequiredTexts([]); "
        "comp.setOptionalFiles([]); comp.setRequiredValues([]); comp.setSuspiciousNumbers(\"warn\"); "
        "comp.setMissingAnchors(\"warn\")\n";
    for (const auto& each : cases) {
        const std::string name = (each.rules + ": " + each.program).toStdString();
        QString rules = each.rules;
        ASSERT_TRUE(run(defaults + rules.replace(".set", "\ncomp.set"))) << name << logText();
        EXPECT_EQ(runProgram(each.program), each.message.isEmpty()) << name << "\n" << logText();
        const QString text = computation()->getLastRun().failureText();
        EXPECT_TRUE(text.contains(each.message)) << name << "\n" << text.toStdString();
        EXPECT_EQ(computation()->getLastRun().stateName(), each.message.isEmpty() ? "finished" : "failed") << name;
    }
}

TEST_F(SuccessRulesTest, furtherCausesAndChangedEntriesFollowTheFirst) {
    ASSERT_TRUE(run("comp.setRequiredTexts([[\"stdout.txt\", \"DONE\"]])"));
    EXPECT_FALSE(runProgram("echo bad >&2; exit 2"));
    ASSERT_TRUE(run("conf.setEntryValue(\"x\", 7)"));
    EXPECT_FALSE(computation()->run());
    const QString text = computation()->getLastRun().failureText();
    int place = 0;
    for (const char* part : {"exit code 2", "Changed since the run before: x = 7\n", "stderr.txt:1: bad\n",
                             "Also: 'stdout.txt' doesn't contain", "Also: It didn't write 'Out.txt'.", "Folder of"}) {
        place = text.indexOf(part, place);
        ASSERT_GE(place, 0) << part << "\n" << text.toStdString();
    }
}

TEST_F(SuccessRulesTest, warningsAboutNumbersOfALoopTellTheRunsApart) {
    for (const char* x : {"7", "8"}) {
        ASSERT_TRUE(run(QString("conf.setEntryValue(\"x\", %1)").arg(x)));
        EXPECT_TRUE(runProgram("echo f 4D+05 > Out.txt; echo said 2"));
        results()->prepareResults();
    }
    EXPECT_TRUE(logHolds("may shift the columns. Changed since the run before: x = 8")) << logText();
}

TEST_F(SuccessRulesTest, rulesAboutTextsNeverReadAnOldFile) {
    ASSERT_TRUE(run("comp.setRequiredTexts([[\"log\", \"DONE\"]])"));
    write("log", "DONE");
    EXPECT_FALSE(runProgram("echo f 4 > Out.txt; echo said 2"));
}

TEST_F(SuccessRulesTest, numbersAreReadBeforeTheEndOnlyIfARuleNeedsThem) {
    const QString writes = "echo h 4 > Out.txt; echo said 2";
    EXPECT_TRUE(runProgram(writes));
    EXPECT_TRUE(results()->tables().isEmpty());
    ASSERT_TRUE(run("comp.setRequiredValues([\"f\"])"));
    EXPECT_TRUE(runProgram(writes));
    EXPECT_FALSE(results()->tables().isEmpty());
}

TEST_F(SuccessRulesTest, theTreatmentDecidesHowNumbersAreReported) {
    ASSERT_TRUE(run("square.setValues([[\"f\", 0, 0, \"f \", First, \"FDouble\", \"\"]])"));
    for (const char* const setting : {"setSuspiciousNumbers", "setMissingAnchors"}) {
        const QString program =
            QString("echo %1 > Out.txt; echo said 2").arg(QString(setting).contains("Anchors") ? "h 4" : "f 4D+05");
        const QList<QPair<QString, QStringList>> cases{
            {"accept", {}}, {"warn", {"warning: "}}, {"fail", {"error: comp: ", "note: "}}};
        for (const auto& [treatment, kinds] : cases) {
            set(*computation(), setting, treatment);
            const int before = log().size();
            EXPECT_EQ(runProgram(program), treatment != "fail");
            results()->prepareResults();
            ASSERT_EQ(log().size() - before, kinds.size()) << setting << treatment.toStdString() << "\n" << logText();
            for (int i = 0; i < kinds.size(); ++i) {
                EXPECT_TRUE(log()[before + i].startsWith(kinds[i])) << logText();
            }
        }
        set(*computation(), setting, QString("warn"));
    }
}

TEST_F(SuccessRulesTest, rulesAreKeptCopiedAndUndone) {
    const QStringList rules{".setAllowedExitCodes([0,2]);",
                            ".setRequiredTexts([[\"a\",\"b\"]]);",
                            ".setForbiddenTexts([[\"c\",\"d\"],[\"e\",\"f\"]]);",
                            ".setOptionalFiles([\"g\"]);",
                            ".setRequiredValues([\"h\"]);",
                            ".setSuspiciousNumbers(\"fail\");",
                            ".setMissingAnchors(\"accept\");"};
    for (const QString& rule : rules) {
        ASSERT_TRUE(run("comp" + rule));
    }
    const FExprBase copy(computation()->clone());
    const auto* copied = dynamic_cast<const FGenIntComputation*>(copy.getObject());
    ASSERT_TRUE(copied);
    for (const QString& rule : rules) {
        EXPECT_TRUE(saved(*computation()).contains(rule)) << rule.toStdString();
        EXPECT_TRUE(saved(*copied).contains(rule)) << rule.toStdString();
    }
    EXPECT_TRUE(run("undo()"));
    for (const char* refused :
         {"setAllowedExitCodes([])", "setAllowedExitCodes([300])", "setForbiddenTexts([\"stdout.txt\", \"x\"])",
          "setRequiredTexts([[\"../x\", \"y\"]])", "setRequiredTexts([[\"x\", \"\"]])",
          "setOptionalFiles([\"../passwd\"])", "setMissingAnchors(\"fial\")"}) {
        const QString before = saved(*computation());
        const int messages = log().size();
        EXPECT_TRUE(run(QString("comp.%1").arg(refused)));
        EXPECT_EQ(saved(*computation()), before) << refused;
        EXPECT_EQ(log().size(), messages + 1) << refused;
    }
}
