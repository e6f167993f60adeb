#include "tests/genericintegration/setup/FChainTest.h"

#include "host/core/FMerixCtrl.h"
#include "tests/support/chainOfThree.h"

FChainTest::FChainTest() {
    FMerixCtrl::instance()->setProjectFile(path("study.mrx"));
    EXPECT_TRUE(run(chainOfThree)) << logText();
}

QString FChainTest::numbers(const QStringList& computations) {
    QStringList found;
    for (const QString& name : computations) {
        found.append(textOf(name + ".getResults().getDataAt(\"v\", 0)"));
    }
    return found.join(' ');
}

void FChainTest::openEmptyProject() const {
    FModelTest::clear();
    FMerixCtrl::instance()->setProjectFile(path("other/study.mrx"));
}
