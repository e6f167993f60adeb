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

TEST_P(ExamplesTest, agreesWithItsFormulas) {
    if (QStandardPaths::findExecutable(GetParam().program).isEmpty()) {
        GTEST_SKIP() << "The program " << GetParam().program << " isn't installed.";
    }
    const Outcome outcome = merix({"script", QString(MERIX_EXAMPLES "/") + GetParam().script});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output.trimmed().section('\n', -1), GetParam().lastLine)
        << outcome.output.toStdString() << outcome.errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(, ExamplesTest,
                         testing::Values(Example{"cantilever", "cantilever/designs.merix", "ccx",
                                                 "All numbers are within 0.25 % of the theory."},
                                         Example{"bandpass", "bandpass/bandpass.merix", "ngspice",
                                                 "All numbers agree with the formulas."}),
                         [](const auto& test) { return test.param.name; });

}  // namespace
