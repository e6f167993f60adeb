#include "tests/system/FProgramTest.h"

#include <QStandardPaths>

namespace {

struct Example {
    const char* name;
    const char* program;
    const char* script;
    const char* lastLine;
    const char* useOfSetUp;  //!< the script that includes setup.merix
    const char* definition;

    friend void PrintTo(const Example& example, std::ostream* stream) { *stream << example.script; }
};

class ExamplesTest : public FProgramTest, public testing::WithParamInterface<Example> {
 protected:
    void SetUp() override {
        if (QStandardPaths::findExecutable(GetParam().program).isEmpty()) {
            GTEST_SKIP() << "The program " << GetParam().program << " isn't installed.";
        }
    }
    static QString example(const char* name) { return QString(MERIX_EXAMPLES "/") + name; }
};

TEST_P(ExamplesTest, agreesWithItsFormulasAndGivesTheSameNumbersWhenReopened) {
    const QString numbers =
        "for (c in getObjects(\"FGenIntComputation\")) {\n  print(\"ran\", c.run())\n"
        "  for (name in c.getResults().getTableNames()) {\n    t = c.getResults().getTable(name)\n"
        "    for (row in t.getRowNames()) { print(row, t.getElementAt(row)) }\n  }\n}\n";
    const Outcome first =
        script("include(\"" + example(GetParam().script) + "\")\n" + numbers + "saveProject(\"example.mrx\")\n");
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_FALSE(first.errors.contains("suspicious")) << "a false alarm: " << first.errors.toStdString();
    EXPECT_EQ(first.output.section("ran true", 0, 0).trimmed().section('\n', -1), GetParam().lastLine);
    const Outcome again = script("print(openProject(\"example.mrx\"))\n" + numbers);
    const QString wanted = first.output.mid(first.output.indexOf("ran true"));
    EXPECT_GT(wanted.count('\n'), 3) << first.errors.toStdString();
    EXPECT_EQ(again.output, "true\n" + wanted) << again.errors.toStdString();
}

TEST_P(ExamplesTest, keepsItsNumbersWhenTheDefinitionComesFromAnExchangeFile) {
    const QString use = example(GetParam().useOfSetUp);
    const QString setUp = use.section('/', 0, -2) + "/setup.merix";
    const Outcome first = script("include(\"" + use + "\")\nprint(" + GetParam().definition + ".save(\"übung.lodm\"))");
    ASSERT_TRUE(first.output.endsWith("\ntrue\n")) << first.errors.toStdString();
    const QString text = QString(read(setUp) + read(use)).remove("include(\"setup.merix\")");
    const Outcome second = script("importGenIntDefinition(\"$FOLDER/übung.lodm\")\n" +
                                      text.mid(text.indexOf("genericIntegrationConfiguration")) + "\nprint(true)",
                                  {}, {"FOLDER=" + path()});
    EXPECT_EQ(second.output, first.output) << second.errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(, ExamplesTest,
                         testing::Values(Example{"cantilever", "ccx", "cantilever/designs.merix",
                                                 "All numbers are within 0.25 % of the theory.",
                                                 "cantilever/cantilever.merix", "beamDefinition"},
                                         Example{"bandpass", "ngspice", "bandpass/bandpass.merix",
                                                 "All numbers agree with the formulas.", "bandpass/bandpass.merix",
                                                 "filterDefinition"}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
