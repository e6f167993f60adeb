#include "tests/genericintegration/setup/FIntegrationTest.h"

#include "host/core/FMerixCtrl.h"

namespace {

const char* const integration = R"(
genericIntegrationCommandFile input() {
    .setContent("x=<entry>x</entry>")
    .setFileName("sub/in.txt")
}
genericIntegrationResultsFile square() {
    .setContent("f 0")
    .setFileName("Out.txt")
    .setValues([["f", 0, 0, "f ", First, "FDouble", "", 0, NULL], ["g", 0, 1, "f ", First, "FDouble", "", 0, NULL]])
}
genericIntegrationResultsFile console() {
    .setContent("said 0")
    .setFileName("stdout.txt")
    .setValues([["s", 0, 0, "said", Last, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition def() {
    .addEntry("x", 2)
    .setFiles([input, square, console])
}
genericIntegrationConfiguration conf() { .setDefinition(def) }
genericIntegrationComputation comp() {
    .setConfiguration(conf)
    .setExecutable("sh")
    .setArguments(["-c", ". ./sub/in.txt; echo f $((x*x)) > Out.txt; echo said $x"])
}
)";

}  // namespace

FIntegrationTest::FIntegrationTest() {
    FMerixCtrl::instance()->setProjectFile(path("study.mrx"));
    EXPECT_TRUE(run(integration)) << logText();
}
