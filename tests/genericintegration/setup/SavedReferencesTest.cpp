#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/script/FProject.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

/** Objects that name each other or results, and what of it a project brings back. */
class SavedReferencesTest : public FIntegrationTest {
 protected:
    /** Saves and opens the project twice; gives what is saved the second time. */
    QString opened() const {
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(FProject::instance()->save(path("study.mrx"))) << logText();
            EXPECT_TRUE(FProject::instance()->open(path("study.mrx"), false)) << logText();
        }
        return savedModel();
    }
};

TEST_F(SavedReferencesTest, resultsInAVariableAreThoseOfTheLastRun) {
    ASSERT_TRUE(
        run("comp.run()\nr = comp.getResults()\n"
            "parameter p(r.getDataAt(\"f\", 0) * 2)\nconf.setEntryValue(\"x\", 3)"));
    EXPECT_EQ(textOf("p + 0"), "8");
    EXPECT_TRUE(savedModel().contains(".setValue(comp.getResults().getDataAt(\"f\",0)*2)"))
        << savedModel().toStdString();
    EXPECT_FALSE(run("r = comp.getResults()\ncomp.run()\nparameter q(r.getDataAt(\"f\", 0))"));
    EXPECT_TRUE(logHolds("these are results of an earlier run; comp.getResults() is those of the last one"))
        << logText();
    EXPECT_EQ(textOf("p + 0"), "18");
    const QString before = savedModel();
    const int logged = log().size();
    EXPECT_EQ(opened().toStdString(), before.toStdString());
    EXPECT_EQ(log().mid(logged), QStringList()) << "closing evaluates nothing";
}

TEST_F(SavedReferencesTest, expressionsAsAverageRowsAreKept) {
    ASSERT_TRUE(
        run("parameter n(1)\n"
            "square.setValues([[\"f\", 0, 0, \"f \", First, \"FDouble\", \"\", 0, n + 1]])"));
    const QString before = opened();
    EXPECT_TRUE(before.contains("[[\"f\",0,0,\"f \",\"First\",\"FDouble\",\"\",0,n+1]]")) << before.toStdString();
    ASSERT_TRUE(run("n.setValue(4)"));
    const auto* value = dynamic_cast<const FGenIntResultsFileValue*>(
        object<FGenIntResultsFile>("square")->getValues()->at(0).getStored());
    EXPECT_EQ(value->mNumAverageRows.ptr()->toString(), "5");
}

// The definition needs its template, whose number needs the computation, which needs the definition.
TEST_F(SavedReferencesTest, objectsOfARingAreReadInTheOrderOfTheText) {
    ASSERT_TRUE(run("def.addEntry(\"n\", 2, 5, 1)\nconf.setEntryValue(\"n[1]\", 3)\ncomp.run()"));
    ASSERT_TRUE(
        run("square.setValues([[\"f\", 0, 0, \"f \", First, \"FDouble\", \"\", 0, comp.getResults().getDataAt(\"f\", "
            "0)]])"));
    const QString before = savedModel();
    EXPECT_EQ(opened().toStdString(), before.toStdString());
    EXPECT_EQ(textOf("conf.getEntryValue(\"n[1]\")"), "3");
}

}  // namespace
