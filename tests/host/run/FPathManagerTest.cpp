#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FDesign.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"
#include "host/script/FProject.h"
#include "tests/support/FModelTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

class FPathManagerTest : public FModelTest {
 protected:
    FPathManager* mPaths = FPathManager::instance();
};

}  // namespace

TEST_F(FPathManagerTest, stepsOfARunAreInItsFolder) {
    FMerixCtrl::instance()->setProjectFile("/home/anna/wing study/wing.v2.mrx");
    const QString baseline = "/home/anna/wing study/wing.v2.results/baseline/";
    {
        const FRunScope outer("/runs/a/");
        {
            const FRunScope inner("/runs/b/");
            EXPECT_EQ(mPaths->getInputDir({}, {}), "/runs/b/");
        }
        EXPECT_EQ(mPaths->getInputDir({}, {}), "/runs/a/");
    }
    EXPECT_EQ(mPaths->getInputDir({}, {}), baseline);
}

TEST_F(FPathManagerTest, knowsTheDesignOfTheCurrentRun) {
    FMerixCtrl::instance()->setProjectFile("/home/anna/study.mrx");
    EXPECT_EQ(mPaths->getProjectDir(), "/home/anna");
    auto* computation = new FExternComputation("solver");
    {
        const FHistoryBlocker blocker;
        computation->registerObject();
    }
    const FExpr<FExternComputation> solver(computation);
    const QString root = "/home/anna/study.results";
    mPaths->setLastRun(root + "/wide/mesher/");
    EXPECT_EQ(mPaths->getDesignDir({}), root + "/wide");
    EXPECT_EQ(mPaths->getResultsDir({}, {}), root + "/wide");
    EXPECT_EQ(mPaths->getResultPath({}, {}), root + "/wide/mesher/");
    EXPECT_EQ(mPaths->getResultsDir(solver, {}), root + "/baseline/solver") << "a computation has its own design";
    EXPECT_EQ(mPaths->getEarlierDir(solver, {}), root + "/baseline/.earlier/solver");
    {
        const FRunScope scope(root + "/narrow/solver/");
        EXPECT_EQ(mPaths->getResultsDir({}, {}), root + "/narrow") << "its steps are being executed";
    }
    FMerixCtrl::instance()->setProjectFile("/home/anna/other.mrx");
    EXPECT_EQ(mPaths->getDesignDir({}), "/home/anna/other.results/baseline") << "that was another project's run";
}

TEST_F(FPathManagerTest, hasATemporaryFolderForAProjectWithoutAFile) {
    // The folder stays, but not that of a test.
    const QTemporaryDir place;
    const QByteArray before = qgetenv("TMPDIR");
    const QString file = place.filePath("file");
    ASSERT_TRUE(QFile("/dev/null").copy(file));
    qputenv("TMPDIR", QFile::encodeName(file));
    const QString impossible = mPaths->getDesignDir({});
    qputenv("TMPDIR", QFile::encodeName(place.path()));
    const QString folder = mPaths->getDesignDir({});
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_TRUE(impossible.startsWith(file + "/merix-")) << impossible.toStdString();
    EXPECT_TRUE(QFileInfo(QFileInfo(folder).path()).isDir()) << folder.toStdString();
    EXPECT_EQ(mPaths->getDesignDir({}), folder);
    EXPECT_LE(log().size(), 1) << "told once";
}

TEST_F(FPathManagerTest, theNextProjectWithoutAFileHasAFolderOfItsOwn) {
    FProject::instance()->create();
    const QTemporaryDir place;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(place.path()));
    const QString first = mPaths->getResultsDir({}, {});
    ASSERT_TRUE(QDir().mkpath(first + "/solver"));
    FProject::instance()->create();
    EXPECT_NE(mPaths->getResultsDir({}, {}), first) << "runs of the project before aren't its runs";
    EXPECT_TRUE(FProject::instance()->save(place.filePath("p.mrx")));
    EXPECT_TRUE(QDir(first + "/solver").exists()) << "nor are they moved to its file";
    FProject::instance()->create();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
}
