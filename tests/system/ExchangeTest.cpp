#include "tests/system/FProgramTest.h"

#include <QStandardPaths>

namespace {

struct Example {
    const char* script;
    const char* program;
    const char* definition;
};

class ExchangeTest : public FProgramTest, public testing::WithParamInterface<Example> {};

/** All but the definition and its templates, which come from a file then. */
QString withoutDefinition(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    return text.mid(text.indexOf("genericIntegrationConfiguration"));
}

TEST_P(ExchangeTest, examplesKeepTheirNumbersThroughAFile) {
    if (QStandardPaths::findExecutable(GetParam().program).isEmpty()) {
        GTEST_SKIP() << "The program " << GetParam().program << " isn't installed.";
    }
    const QString example = QString(MERIX_EXAMPLES "/") + GetParam().script;
    const Outcome first =
        script("include(\"" + example + "\")\nprint(" + GetParam().definition + ".save(\"übung.lodm\"))");
    ASSERT_TRUE(first.output.endsWith("\ntrue\n")) << first.errors.toStdString();
    const Outcome second =
        script("importGenIntDefinition(\"$FOLDER/übung.lodm\")\n" + withoutDefinition(example) + "\nprint(true)", {},
               {"FOLDER=" + path()});
    EXPECT_EQ(second.output, first.output) << second.errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(, ExchangeTest,
                         testing::Values(Example{"cantilever/cantilever.merix", "ccx", "beamDefinition"},
                                         Example{"bandpass/bandpass.merix", "ngspice", "filterDefinition"}),
                         [](const auto& test) { return test.param.program; });

}  // namespace
