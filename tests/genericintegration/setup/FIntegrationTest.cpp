#include "tests/genericintegration/setup/FIntegrationTest.h"

#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"

#include <QDir>
#include <QFile>

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
    FMerixCtrl::instance()->setProjectFile(mFolder.filePath("study.mrx"));
    EXPECT_TRUE(run(integration)) << logText().toStdString();
}

FIntegrationTest::~FIntegrationTest() {
    FMerixCtrl::instance()->setProjectFile({});
}

FGenIntComputation* FIntegrationTest::computation(const QString& name) {
    return dynamic_cast<FGenIntComputation*>(FObjectManager::instance()->find(name));
}

FResultsGenInt* FIntegrationTest::results() {
    return dynamic_cast<FResultsGenInt*>(computation()->getResults().ptr());
}

void FIntegrationTest::write(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(computation()->getWorkingPath());
    QFile file(computation()->getWorkingPath() + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}
