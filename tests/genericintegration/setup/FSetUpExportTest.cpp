#include "genericintegration/setup/FSetUpExport.h"
#include "host/lodm/FImport.h"
#include "host/run/FComputationChain.h"
#include "host/run/FComputationGraph.h"
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
    EXPECT_EQ(chainOf("first"), (QStringList{"late", "first", "second", "third", "apart"}));
    EXPECT_EQ(chainOf("alone"), QStringList{"alone"});
}

TEST_F(FSetUpExportTest, linksHaveTheNamesOfTheirFilesAndEntries) {
    // Through a parameter, by the name of a template, and through the value of another configuration.
    ASSERT_TRUE(
        run("parameter twice(2 * second.getResults().getDataAt(0, 0))\n"
            "conf3.setEntryValue(\"note\", inputFile(first.getResults().getResultTemplateName(\"first.txt\")))\n"
            "def5.addEntry(\"Group|y\", 0)\nconf5.setEntryValue(\"Group|y\", twice + conf3.getEntryValue(\"x\"))"));
    const FComputationGraph graph;
    QStringList lines;
    for (const FComputationGraph::Link& link : graph.links()) {
        const auto nameOf = [&](int index) { return graph.computations()[static_cast<std::size_t>(index)]->getName(); };
        lines.append(QString("%1 > %2: %3; %4")
                         .arg(nameOf(link.supplier), nameOf(link.client), link.files.join(' '), link.values.join(' ')));
    }
    lines.sort();
    EXPECT_EQ(lines, (QStringList{"first > apart: first.txt; ", "first > second: first.txt; ",
                                  "first > third: first.txt; ", "second > alone: ; Group|y", "second > third: ; x"}));
}

TEST_F(FSetUpExportTest, aLongChainIsFoundFromItsMiddle) {
    clear();
    constexpr int count = 1000;
    QString script;
    for (int i = 0; i < count; ++i) {
        script += QString(
                      "genericIntegrationDefinition d%1() { .addEntry(\"x\", 0) }\n"
                      "genericIntegrationConfiguration c%1() { .setDefinition(d%1) }\n"
                      "genericIntegrationComputation r%1() { .setConfiguration(c%1) }\n")
                      .arg(i);
    }
    // From the last one to the first one.
    for (int i = 1; i < count; ++i) {
        script += QString("c%1.setEntryValue(\"x\", r%2.getResults().getDataAt(0, 0))\n").arg(i - 1).arg(i);
    }
    ASSERT_TRUE(run(script));
    const QStringList chain = chainOf(QString("r%1").arg(count / 2));
    EXPECT_EQ(chain.size(), count);
    EXPECT_EQ(chain.first(), QString("r%1").arg(count - 1));
    EXPECT_EQ(chain.last(), "r0");
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

TEST_F(FSetUpExportTest, whatIsLeftOutIsReportedAndReadAsNull) {
    ASSERT_TRUE(run(R"(
parameter rows(2); parameter length(4); point tip(); point left(3)
featureDefinition feature() { .setEntities([left]) }
def1.addEntry("shape", geometryExport("g.csv", 1, feature))
out1.setValues([["v", 0, 0, "v ", First, "FDouble", ""], ["m", 0, 1, "", First, "FDouble", "", 1, rows + 1]])
conf1.setEntryValue("x", length * 2)
design heavy(); first.setDesign(heavy))"));
    EXPECT_TRUE(computation("first")->exportSetUp(path("one.lodm"), false));
    for (const char* told : {"out1: setValues names \"rows\"", "feature: setEntities names \"left\"",
                             "conf1: the value of entry \"x\" names \"length\"", "first: its design names \"heavy\""}) {
        EXPECT_TRUE(logHolds(told)) << told << '\n' << logText();
    }
    EXPECT_EQ(log().size(), 4) << logText();
    openEmptyProject();
    const int lines = log().size();
    ASSERT_TRUE(run("softwareConnectorImport i()"));
    auto* import = object<FImport>("i");
    import->read(path("one.lodm"), false);
    EXPECT_EQ(import->getFaultCount(), 0) << logText();
    EXPECT_EQ(log().mid(lines).filter(": nothing is named \"").size(), 4) << logText();
    EXPECT_TRUE(textOf("getAttribute(out1, \"setValues\")").endsWith(",\"FDouble\",\"\",1,NULL]]"))
        << textOf("getAttribute(out1, \"setValues\")").toStdString();
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
