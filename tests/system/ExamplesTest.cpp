#include "tests/system/FProgramTest.h"

#include <QStandardPaths>

namespace {

struct Example {
    const char* name;
    const char* script;
    const char* program;
    const char* lastLine;

    friend void PrintTo(const Example& example, std::ostream* stream) { *stream << example.script; }
};

class ExamplesTest : public FProgramTest, public testing::WithParamInterface<Example> {};

TEST_P(ExamplesTest, agreesWithItsFormulasAndGivesTheSameNumbersWhenReopened) {
    if (QStandardPaths::findExecutable(GetParam().program).isEmpty()) {
        GTEST_SKIP() << "The program " << GetParam().program << " isn't installed.";
    }
    const QString numbers =
        "for (c in getObjects(\"FGenIntComputation\")) {\n  print(\"ran\", c.run())\n"
        "  for (name in c.getResults().getTableNames()) {\n    t = c.getResults().getTable(name)\n"
        "    for (row in t.getRowNames()) { print(row, t.getElementAt(row)) }\n  }\n}\n";
    const QString example = QString(MERIX_EXAMPLES "/") + GetParam().script;
    const Outcome first = script("include(\"" + example + "\")\n" + numbers + "saveProject(\"example.mrx\")\n");
    EXPECT_EQ(first.exitCode, 0);
    EXPECT_EQ(first.output.section("ran true", 0, 0).trimmed().section('\n', -1), GetParam().lastLine);
    const Outcome again = script("print(openProject(\"example.mrx\"))\n" + numbers);
    const QString wanted = first.output.mid(first.output.indexOf("ran true"));
    EXPECT_GT(wanted.count('\n'), 3) << first.errors.toStdString();
    EXPECT_EQ(again.output, "true\n" + wanted) << again.errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(, ExamplesTest,
                         testing::Values(Example{"cantilever", "cantilever/designs.merix", "ccx",
                                                 "All numbers are within 0.25 % of the theory."},
                                         Example{"bandpass", "bandpass/bandpass.merix", "ngspice",
                                                 "All numbers agree with the formulas."}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
