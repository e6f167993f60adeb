#include "tests/system/FProgramTest.h"

#include <QStandardPaths>

namespace {

struct Example {
    const char* name;
    const char* program;
    const char* script;
    const char* lastLine;
    const char* useOfSetUp;  //!< the script that includes setup.merix
    const char* definition;  //!< null if there are several
    const char* computation;

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
    if (!GetParam().definition) {
        GTEST_SKIP() << "It has several definitions.";
    }
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

TEST_P(ExamplesTest, keepsItsNumbersWhenItsChainIsHandedOn) {
    const QString use = example(GetParam().useOfSetUp);
    ASSERT_EQ(script("include(\"" + use.section('/', 0, -2) + "/setup.merix\")\nsaveProject(\"p.mrx\")").exitCode, 0);
    const QString computation = GetParam().computation;
    const Outcome exported = merix({"export", "p.mrx", "--computation", computation, "--chain", "--out", "p.lodm"});
    EXPECT_EQ(exported.exitCode, 0) << exported.errors.toStdString();
    ASSERT_TRUE(QDir(path()).mkdir("other"));
    EXPECT_EQ(merix({"import", "p.lodm", "--into", "other/q.mrx"}).exitCode, 0);
    const Outcome wanted = merix({"run", "p.mrx", "--computation", computation, "--chain"});
    const Outcome found = merix({"run", "other/q.mrx", "--computation", computation, "--chain"});
    EXPECT_GE(wanted.output.count('\n'), 3) << wanted.errors.toStdString();
    EXPECT_EQ(found.output, wanted.output) << found.errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(, ExamplesTest,
                         testing::Values(Example{"cantilever", "ccx", "cantilever/designs.merix",
                                                 "All numbers are within 0.25 % of the theory.",
                                                 "cantilever/cantilever.merix", "beamDefinition", "calculix"},
                                         Example{"bandpass", "ngspice", "bandpass/bandpass.merix",
                                                 "All numbers agree with the formulas.", "bandpass/bandpass.merix",
                                                 "filterDefinition", "ngspice"},
                                         Example{"heat_exchanger", "gmsh", "heat-exchanger/heat-exchanger.merix",
                                                 "All numbers are within 0.01 % of the formulas.",
                                                 "heat-exchanger/heat-exchanger.merix", nullptr, "calculix"}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
