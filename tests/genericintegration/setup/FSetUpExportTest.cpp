#include "genericintegration/setup/FSetUpExport.h"

#include "host/run/FComputationChain.h"
#include "tests/genericintegration/setup/FChainTest.h"
#include "tests/support/FFileSizeLimit.h"

#include <QDir>
#include <QRegularExpression>

namespace {

class FSetUpExportTest : public FChainTest {
 protected:
    /** The names of the computations and connectors in a file, in its order, with "|" where a part begins. */
    QString contents(const QString& file) const {
        static const QRegularExpression part(
            QStringLiteral("^<\\?xml|^genericIntegrationComputation (\\w+)|^softwareConnector (\\w+)"),
            QRegularExpression::MultilineOption);
        QStringList found;
        for (auto match = part.globalMatch(read(file)); match.hasNext();) {
            const QRegularExpressionMatch hit = match.next();
            found.append(hit.lastCapturedIndex() > 0 ? hit.captured(hit.lastCapturedIndex()) : QStringLiteral("|"));
        }
        return found.join(' ');
    }
    static QStringList chainOf(const QString& name) {
        QStringList names;
        for (const FExternComputation* member : FComputationChain::of(*computation(name))) {
            names.append(member->getName());
        }
        return names;
    }
};

TEST_F(FSetUpExportTest, aChainReachesBothSidesWithSuppliersFirst) {
    // A supplier that was made after its client.
    ASSERT_TRUE(
        run("genericIntegrationComputation late()\nconf1.setEntryValue(\"x\", late.getResults().getDataAt(0, 0))"));
    EXPECT_EQ(chainOf("second"), (QStringList{"late", "first", "second", "third"}));
    EXPECT_EQ(chainOf("first"), (QStringList{"late", "first", "second", "apart", "third"}));
    EXPECT_EQ(chainOf("alone"), QStringList{"alone"});
}

TEST_F(FSetUpExportTest, aFileHoldsOneSetUpOrTheChainInOneStep) {
    ASSERT_TRUE(run("print(second.exportSetUp(\"" + path("one.lodm") + "\"))"));
    EXPECT_EQ(contents("one.lodm"), "| second second_connector");
    EXPECT_TRUE(logHolds("conf2: the value of entry \"data\" names \"first\", which isn't saved along")) << logText();
    const int lines = log().size();
    EXPECT_TRUE(computation("second")->exportSetUp(path("all.lodm"), true));
    EXPECT_EQ(contents("all.lodm"), "| first first_connector | second second_connector | third");
    EXPECT_EQ(log().mid(lines), QStringList()) << "the parts before hold what is named";

    const QString before = read("all.lodm");
    {
        const FFileSizeLimit full(static_cast<rlim_t>(before.toUtf8().size() - 100));
        EXPECT_FALSE(computation("second")->exportSetUp(path("all.lodm"), true));
    }
    EXPECT_TRUE(logHolds("second: its set-up can't be written to \"" + path("all.lodm"))) << logText();
    EXPECT_EQ(read("all.lodm"), before);
    EXPECT_EQ(QDir(path()).entryList({"*.saving*"}), QStringList());
    ASSERT_TRUE(run("genericIntegrationComputation bare()"));
    EXPECT_FALSE(computation("bare")->exportSetUp(path("bare.lodm"), false));
    EXPECT_TRUE(logHolds("it has no configuration with a definition")) << logText();
}

TEST_F(FSetUpExportTest, aGeometryThatTwoSetUpsExportIsWrittenOnce) {
    ASSERT_TRUE(
        run("parameter wing(3)\nfor (d in [def1, def2]) { d.addEntry(\"stl\", geometryExport(\"w.stl\", 1, wing)) }\n"
            "design heavy(); second.setDesign(heavy)"));
    EXPECT_TRUE(computation("second")->exportSetUp(path("all.lodm"), true));
    EXPECT_EQ(read("all.lodm").count("parameter wing"), 1);
    EXPECT_TRUE(logHolds("second: its design names \"heavy\", which isn't saved along")) << logText();
    EXPECT_EQ(log().size(), 1) << logText();
}

}  // namespace
