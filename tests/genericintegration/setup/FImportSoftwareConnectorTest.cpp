#include "genericintegration/setup/FConnectorRecord.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FImportSoftwareConnector.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/lodm/FLodmDefinitionParser.h"
#include "tests/genericintegration/setup/FChainTest.h"

#include <algorithm>
#include <random>

namespace {

class FImportSoftwareConnectorTest : public FChainTest {
 protected:
    FImportSoftwareConnectorTest() {
        EXPECT_TRUE(computation("second")->exportSetUp(path("chain.lodm"), true)) << logText();
    }

    /** Imports a file, or what is written to one; returns what the log then says. */
    QStringList import(const QString& name) {
        const int lines = log().size();
        const std::unique_ptr<FImport> import = FImport::forFile(name);
        EXPECT_EQ(import->read(path(name), false)->count(), 0);
        mFaults = import->getFaultCount();
        return log().mid(lines);
    }
    QStringList importText(const QString& text) {
        write("text.lodm", text.toUtf8());
        return import("text.lodm");
    }
    QString part(int number) const {
        const QString header = FLodmDefinitionParser::xmlHeader;
        return header + QString(read("chain.lodm")).section(header, number, number);
    }
    static QStringList names(const FObject* prototype) {
        QStringList names;
        for (const FManaged* object : FObjectManager::instance()->getManaged(prototype)) {
            names.append(object->getName());
        }
        return names;
    }
    static QStringList withSuffix(QStringList names) {
        for (QString& name : names) {
            name += "_01";
        }
        return names;
    }
    void runChain(const QString& suffix = {}) {
        for (const QString& name : mChain) {
            ASSERT_TRUE(run(name + suffix + ".run()")) << logText();
        }
    }

    const QStringList mChain{"first", "second", "third"};
    int mFaults = -1;
};

TEST_F(FImportSoftwareConnectorTest, aChainComesBackInAnEmptyProject) {
    const QString configurations =
        saved(*object<FManaged>("conf1")) + saved(*object<FManaged>("conf2")) + saved(*object<FManaged>("conf3"));
    runChain();
    EXPECT_EQ(numbers(mChain), "3 9 10");
    openEmptyProject();
    EXPECT_EQ(import("chain.lodm"), QStringList());
    EXPECT_EQ(mFaults, 0);
    EXPECT_EQ(FHistory::instance()->getLabels(), QStringList{"Software Connector Import"});
    EXPECT_EQ(names(FGenIntComputation::null()), mChain);
    EXPECT_EQ(names(FConnectorRecord::null()), (QStringList{"first_connector", "second_connector"}));
    EXPECT_EQ(saved(*object<FManaged>("conf1")) + saved(*object<FManaged>("conf2")) + saved(*object<FManaged>("conf3")),
              configurations);
    EXPECT_TRUE(saved(*object<FManaged>("first_connector")).contains("setItemSize(\"Large\")"));
    EXPECT_EQ(object<FConnectorRecord>("second_connector")->getComputation().ptr(), computation("second"));
    runChain();
    EXPECT_EQ(numbers(mChain), "3 9 10");

    const QString imported = savedModel();
    ASSERT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel(), QString());
    ASSERT_TRUE(FHistory::instance()->redo());
    EXPECT_EQ(savedModel(), imported);
    ASSERT_TRUE(computation("third")->exportSetUp(path("again.lodm"), true));
    EXPECT_EQ(read("again.lodm"), read("chain.lodm"));
}

TEST_F(FImportSoftwareConnectorTest, inItsOwnProjectNamesMeanTheNewObjects) {
    const QString before = savedModel();
    const QStringList told = import("chain.lodm");
    EXPECT_EQ(told.filter("is taken; the new ").size(), told.size()) << told.join('\n').toStdString();
    EXPECT_EQ(mFaults, 0) << "other names are no fault";
    EXPECT_EQ(names(FGenIntComputation::null()),
              (QStringList{"first", "second", "third", "apart", "alone"} + withSuffix(mChain)));
    EXPECT_TRUE(savedModel().startsWith(before)) << "what was there keeps its numbers";
    EXPECT_EQ(textOf("conf2_01.getEntryValue(\"data\")"), "first_01.getResults().getResultFileName(\"file\")");
    ASSERT_TRUE(run("conf1_01.setEntryValue(\"x\", 5)"));
    runChain("_01");
    runChain();
    EXPECT_EQ(numbers(withSuffix(mChain)), "5 25 26");
    EXPECT_EQ(numbers(mChain), "3 9 10");

    for (int step = 0; step < 2; ++step) {
        ASSERT_TRUE(FHistory::instance()->undo());
    }
    EXPECT_EQ(savedModel(), before);
}

TEST_F(FImportSoftwareConnectorTest, aScriptImportsInOneStatement) {
    openEmptyProject();
    ASSERT_TRUE(run("softwareConnectorImport i()"));
    ASSERT_TRUE(run("print(i.read(\"" + path("chain.lodm") + "\"))"));
    EXPECT_EQ(names(FGenIntComputation::null()), mChain);
    EXPECT_FALSE(FMerixCtrl::instance()->isLoadingProject());
    ASSERT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(FObjectManager::instance()->getNames(), QStringList{"i"});
    EXPECT_EQ(FImport::getFilters(), QStringList{"LODM (*.lodm)"});
    EXPECT_EQ(FImport::forFile("a.txt"), nullptr);
}

// The file may end anywhere, also in the middle of a character.
TEST_F(FImportSoftwareConnectorTest, whatIsLeftOfAFileIsImportedAndTheRestReported) {
    const QByteArray whole = read("chain.lodm");
    std::mt19937 random(1);
    for (int i = 0; i < 200; ++i) {
        const int length = std::uniform_int_distribution<int>(0, whole.size() - 1)(random);
        openEmptyProject();
        write("cut.lodm", whole.left(length));
        const QStringList told = import("cut.lodm");
        const QByteArray rest = whole.left(length);
        const bool isWhole = length == 0 || rest.mid(rest.lastIndexOf('\n', -2) + 1).startsWith("lastFile : ");
        EXPECT_EQ(told.isEmpty(), isWhole) << length << ": " << told.join('\n').toStdString();
        EXPECT_EQ(mFaults == 0, told.isEmpty()) << length;
        EXPECT_TRUE(told.isEmpty() || told.last().contains("cut.lodm:")) << told.join('\n').toStdString();
        // The parts before the last one are whole.
        const int headers = rest.count(FLodmDefinitionParser::xmlHeader);
        EXPECT_EQ(names(FGenIntComputation::null()).mid(0, headers - 1), mChain.mid(0, std::max(0, headers - 1)));
        EXPECT_LE(names(FDefinitionGenInt::null()).size(), headers);
        while (FHistory::instance()->undo()) {
        }
        EXPECT_EQ(savedModel(), QString()) << length;
        if (HasFailure()) {
            return;
        }
    }
}

TEST_F(FImportSoftwareConnectorTest, partsInTheWrongOrderLoseTheirLinksOnly) {
    const QStringList told = importText(part(2) + part(1));
    EXPECT_EQ(mFaults, 1);
    EXPECT_EQ(told.filter("text.lodm:").filter("nothing is named \"first\"").size(), 1)
        << "never the object of that name in the model" << told.join('\n').toStdString();
    EXPECT_EQ(textOf("conf2_01.getEntryValue(\"data\")"), "none");
    EXPECT_EQ(computation("second_01")->getConfiguration()->getName(), "conf2_01");
}

TEST_F(FImportSoftwareConnectorTest, onePartHasTheNameOfAnother) {
    openEmptyProject();
    importText(part(1) + part(2) + part(1).replace("def1", "out2").replace("\"x\",3", "\"x\",4"));
    EXPECT_EQ(names(FGenIntComputation::null()), (QStringList{"first", "second", "first_01"}));
    EXPECT_EQ(computation("first_01")->getConfiguration()->getName(), "conf1_01");
    EXPECT_EQ(textOf("conf1_01.getEntryValue(\"x\")"), "4");
    EXPECT_EQ(object<FConnectorRecord>("first_connector_01")->getComputation().ptr(), computation("first_01"));
    EXPECT_EQ(textOf("conf2.getEntryValue(\"data\")"), "first.getResults().getResultFileName(\"file\")");
}

TEST_F(FImportSoftwareConnectorTest, otherPartsAreReportedWithTheirLine) {
    openEmptyProject();
    const QString header = FLodmDefinitionParser::xmlHeader;
    const QString definition = header + "\n<definition version=\"1\" name=\"d\"/>\n<<<object area>>>\n";
    const QString end = "curFile : NULL\nlastFile : NULL\n";
    struct Case {
        QString text;
        QStringList told;  // in each line
        QStringList objects;
    };
    const std::vector<Case> cases{
        {"", {}, {}},
        {"leading text\n" + definition + end,
         {"text.lodm:1:", "text.lodm:2:1: the set-up of \"d\" has no configuration and no computation"},
         {"d"}},
        {header + "\n<other/>\n", {"text.lodm:2:"}, {}},
        {definition + "genericIntegrationComputation c() {}\nsoftwareConnector s() {}\n" + end,
         {"has no configuration in"},
         {"d", "c", "s"}},
        {definition + "genericIntegrationConfiguration c() {}\nsoftwareConnector s() {}\nparameter p(1)\n",
         {"has no computation and no last line in"},
         {"d", "c", "s", "p"}},
        {definition + "c.setExecutable(\"x\")\nwrong {\n" + end,
         {"text.lodm:5:7", "text.lodm:4:1", "no configuration"},
         {"d"}},
        // The last of each kind counts, and is brought to this definition.
        {definition +
             "genericIntegrationComputation c() {}\ngenericIntegrationConfiguration a() {}\n"
             "genericIntegrationConfiguration b() {}\ngenericIntegrationComputation e() {}\n"
             "softwareConnector s() { .setComputation(c) }\n" +
             end,
         {},
         {"d", "c", "a", "b", "e", "s"}},
    };
    for (const Case& each : cases) {
        const QStringList told = importText(each.text);
        ASSERT_EQ(told.size(), each.told.size()) << each.text.toStdString() << told.join('\n').toStdString();
        for (int i = 0; i < told.size(); ++i) {
            EXPECT_TRUE(told[i].contains(each.told[i])) << told[i].toStdString() << each.told[i].toStdString();
        }
        EXPECT_EQ(mFaults, told.size());
        EXPECT_EQ(names(FManaged::null()), each.objects) << each.text.toStdString();
        if (&each != &cases.back()) {
            openEmptyProject();
        }
    }
    EXPECT_EQ(computation("e")->getConfiguration()->getName(), "b");
    EXPECT_EQ(computation("e")->getConfiguration()->getDefinition()->getName(), "d");
    EXPECT_EQ(object<FConnectorRecord>("s")->getComputation().ptr(), computation("e"));
    EXPECT_FALSE(computation("c")->getConfiguration());

    write("bytes.lodm", (definition + "// ").toUtf8() + '\xe9' + '\n' + end.toUtf8());
    EXPECT_EQ(import("bytes.lodm").filter("bytes.lodm:4: this line has bytes that aren't UTF-8").size(), 1);
    EXPECT_EQ(import("none.lodm"), QStringList());
}

TEST_F(FImportSoftwareConnectorTest, manyPartsAreOneStep) {
    const QString small = QString(FLodmDefinitionParser::xmlHeader) +
                          "\n<definition version=\"1\" name=\"d\"/>\n<<<object area>>>\n"
                          "genericIntegrationResultsFile f() { .setFileName(\"a\") }\n"
                          "genericIntegrationConfiguration c() { .setDefinition(d) }\n"
                          "genericIntegrationComputation r() { .setConfiguration(c) }\n"
                          "softwareConnector s() { .setComputation(r) }\ncurFile : f\nlastFile : NULL\n";
    constexpr int count = 1000;
    openEmptyProject();
    write("many.lodm", small.repeated(count).toUtf8());
    const QStringList told = import("many.lodm");
    EXPECT_EQ(told.filter("is taken; the new").size(), told.size());
    EXPECT_EQ(mFaults, 0);
    EXPECT_EQ(names(FGenIntComputation::null()).size(), count);
    ASSERT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel(), QString());
}

}  // namespace
