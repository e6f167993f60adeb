#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FHistory.h"
#include "host/script/FProject.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

/** Statements and the steps that they leave. */
class StepsTest : public FIntegrationTest {
 protected:
    static FHistory& history() { return *FHistory::instance(); }
    static int steps() { return history().getLabels().size(); }
};

// What a statement does is undone to the letter, whatever else it calls.
TEST_F(StepsTest, everyStatementIsAStepWhateverItCalls) {
    FTestFolder::write("more.merix", "parameter late(1)\n");
    ASSERT_TRUE(run("parameter a(1)\ngenericIntegrationConfiguration other() { .setDefinition(def) }"));
    const QString exchange = path("d.lodm");
    const struct {
        QString statement;
        QStringList labels;
    } cases[] = {
        {"[destroy(a), def.save(\"" + exchange + "\")]", {""}},
        {"comp.setStandardInput(\"x\").cancel()", {"cancel"}},
        {"[comp.setStandardInput(\"y\"), comp.cancel()]", {""}},
        {"print(comp.setConfiguration(other).run())", {"print"}},
        {"[rename(a, \"b\"), include(\"" + path("more.merix") + "\"), destroy(a)]", {"", "parameter", ""}},
        {"for (i in [1, 2]) { a.setValue(i + 5); comp.run() }", {"for (test:1)", "for (test:1)"}},
        {"x = [a.setValue(8), saveProject(\"" + path("p.mrx") + "\"), a.setValue(9)]", {"x", "x"}},
    };
    for (const auto& c : cases) {
        const QString before = savedModel();
        const int count = steps();
        EXPECT_TRUE(run(c.statement)) << c.statement.toStdString() << logText();
        EXPECT_EQ(history().getLabels().mid(count), c.labels) << c.statement.toStdString();
        const QString after = savedModel();
        EXPECT_NE(after, before);
        for (const bool forward : {false, true, false}) {
            for (int i = 0; i < c.labels.size(); ++i) {
                EXPECT_TRUE(forward ? history().redo() : history().undo()) << c.statement.toStdString();
            }
            EXPECT_EQ(savedModel().toStdString(), (forward ? after : before).toStdString())
                << c.statement.toStdString();
        }
    }
    EXPECT_EQ(FTestFolder::read("p.mrx").count("setValue(8)"), 1) << "saved in the middle of the statement";
    FProject::instance()->close(false);
}

TEST_F(StepsTest, anErrorTakesBackWhatFollowsTheLastInterruption) {
    ASSERT_TRUE(run("parameter a(1)"));
    EXPECT_FALSE(run("for (i in [1, 2]) { a.setValue(i); comp.run(); a.setValue(7); noSuch() }"));
    EXPECT_EQ(textOf("a"), "a");
    EXPECT_EQ(textOf("a.getValue()"), "1");
    ASSERT_TRUE(run("[a.setValue(3), undo(), a.setValue(4)]"));
    EXPECT_EQ(history().getLabels().last(), "");
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(textOf("a.getValue()"), "1");
}

// An object that only the row records leaves the step if it is unchanged; what the operation adds stays.
TEST_F(StepsTest, whatChangesNothingIsAStepOnlyIfTheOperationSaysSo) {
    const std::pair<const char*, int> cases[] = {
        {"input.setFileName(\"sub/in.txt\")", 0},
        {"comp.setTimeLimit(0)", 0},
        {"def.setFiles([input, square, console])", 0},
        {"input.setContent(\"x=<entry>x</entry>\")", 1},
        {"def.renameEntry(\"x\", \"x\")", 0},
        {"square.setForceWindowsLineEndings(false)", 1},
        {"p.setValue([1, \"a\"])", 0},
        {"conf.setEntryValue(\"x\", 4)", 0},
        {"square.setValues([[\"v\", 1, 2, \"v \", First, \"FDouble\", \"\"]])", 0},
    };
    ASSERT_TRUE(
        run("parameter p([1, \"a\"])\nconf.setEntryValue(\"x\", 4)\n"
            "square.setValues([[\"v\", 1, 2, \"v \", First, \"FDouble\", \"\"]])"));
    for (const auto& [statement, count] : cases) {
        const int before = steps();
        const QString saved = savedModel();
        ASSERT_TRUE(run(statement));
        EXPECT_EQ(steps(), before + count) << statement;
        EXPECT_EQ(savedModel(), saved);
    }
}

// What an operation reports for one element is no reason to leave out the next one.
TEST_F(StepsTest, aWarningOfOneElementDoesntStopAList) {
    ASSERT_TRUE(run("genericIntegrationConfiguration none()"));
    for (const char* list : {"[none, conf]", "[conf, none]", "[[none], conf]"}) {
        ASSERT_TRUE(run("conf.setEntryValue(\"x\", 1)\n" + QString(list) + ".setEntryValue(\"x\", 7)"));
        EXPECT_EQ(textOf("conf.getEntryValue(\"x\")"), "7") << list;
    }
    ASSERT_TRUE(run("parameter name(\"zz\")\nparameter p(conf.getEntryValue(name))"));
    EXPECT_EQ(textOf("p + 0"), "NULL");
    ASSERT_TRUE(run("name.setValue(\"x\")"));
    EXPECT_EQ(textOf("p + 0"), "7");
}

TEST_F(StepsTest, undoOfAContentTellsTheEditors) {
    ASSERT_TRUE(run("input.setContent(\"y\")"));
    auto* file = object<FGenIntFile>("input");
    file->setContentAltered(false);
    EXPECT_TRUE(history().undo());
    EXPECT_TRUE(file->wasContentAltered());
}

}  // namespace
