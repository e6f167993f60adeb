#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntDefinitionParser.h"
#include "host/core/FIni.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserInterface.h"
#include "host/run/FPathManager.h"
#include "tests/support/FFileSizeLimit.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

namespace {

/** A user who chooses a file. */
class FChooser : public FUserInterface {
 public:
    FChooser() { replace(this); }
    ~FChooser() override { replace(nullptr); }
    QString askOpenFile(const QString& caption, const QString& startPath, const QString& filter) override {
        asked = QStringList{caption, startPath, filter};
        return answer;
    }

    QStringList asked;
    QString answer;
};

class FGenIntDefinitionParserTest : public FDirectTest, public FTestFolder {
 public:
    FGenIntDefinitionParserTest() { FIni::setFile(path("settings.ini")); }
    ~FGenIntDefinitionParserTest() override { FIni::setFile({}); }

 protected:
    /** The objects that an object area contains. */
    static FDefinitionGenInt* readObjects(const QString& objects) {
        FGenIntDefinitionParser parser{FExpr<FDefinitionCustom>(FDefinitionGenInt::null())};
        parser.read("<definition version=\"1\" name=\"d\"/>\n\n" + FLodmDefinitionParser::smObjectArea + "\n" +
                    objects);
        return dynamic_cast<FDefinitionGenInt*>(parser.getDefinition().ptr());
    }
    static QStringList names(const FDefinitionGenInt& definition) {
        QStringList names;
        for (const FExpr<FGenIntFile>& file : definition.getFiles()) {
            names.append(file->getName());
        }
        return names;
    }
};

const char* const integration = R"(
parameter wing(3)
parameter tail(4)
genericIntegrationCommandFile b() {
    .setContent("<entry>x</entry> ]]> <<<object area>>> [B64] ä
")
    .setFileName("sub/b.txt") .setForceWindowsLineEndings(true)
}
genericIntegrationResultsFile a() {
    .setFileName("a.txt")
    .setValues([["curFile : b", 0, 1, "\"\\ ]]>", First, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition d() {
    .addEntry("x", 2) .addEntry("G|stl", geometryExport("w.stl", 1, wing)) .addEntry("list", geometryExport("t.stl", 0, [tail]))
    .setFiles([b, a]); .setCurFile(a); .setLastFile(b)
}
)";

TEST_F(FGenIntDefinitionParserTest, aDefinitionComesBackInItsProjectAndInAnother) {
    ASSERT_TRUE(run(integration + ("d.save(\"" + path("d.lodm") + "\")")));
    const QString saved = read("d.lodm");
    EXPECT_TRUE(saved.contains("</definition>\n\n" + FLodmDefinitionParser::smObjectArea + "\n"));
    EXPECT_TRUE(saved.endsWith("}\ncurFile : a\nlastFile : b\n"));
    EXPECT_FALSE(saved.contains("parameter tail"));
    // Names in the file refer to its own objects.
    ASSERT_TRUE(run("copy = importGenIntDefinition(\"" + path("d.lodm") + "\")"));
    EXPECT_TRUE(logHolds("d.lodm:2:34: the name \"d\" is taken; the new definition is \"d_01\""));
    const auto* copy = object<FDefinitionGenInt>("d_01");
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(names(*copy), (QStringList{"b_01", "a_01"}));
    EXPECT_EQ(copy->getCurFile()->getName(), "a_01");
    EXPECT_EQ(copy->getLastFile()->getName(), "b_01");
    EXPECT_TRUE(copy->furtherSavedCommands().contains("addEntry(\"G|stl\",geometryExport(\"w.stl\",1,wing_01))"));

    ASSERT_TRUE(run("for (o in [b, a, d, wing, b_01, a_01, d_01, wing_01]) { destroy(o) }"));
    ASSERT_TRUE(run("importGenIntDefinition(\"" + path("d.lodm") + "\").save(\"" + path("again.lodm") + "\")"));
    EXPECT_EQ(read("again.lodm"), saved);
}

TEST_F(FGenIntDefinitionParserTest, templatesKeepTheirOrderWhateverTheyNeed) {
    ASSERT_TRUE(run(integration + QString(R"(
genericIntegrationConfiguration c() { .setDefinition(d); .setEntryValue("x", 5) }
a.setValues([["v", 0, 1, "v", First, "FDouble", "", 1, c.getEntryValue("x")]])
genericIntegrationResultsFile last() {}
d.setFiles([a, b, last]); rename(d, "Small")
)")));
    QFile file(path("d.lodm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(object<FDefinitionGenInt>("Small")->save({FExpr<FManaged>(object<FManaged>("c"))}, file));
    file.close();
    FModelTest::clear();
    ASSERT_TRUE(run("parameter tail(4)\nimportGenIntDefinition(\"" + path("d.lodm") + "\")"));
    ASSERT_NE(object<FDefinitionGenInt>("Small"), nullptr) << "a word of an enumeration is a name like others";
    EXPECT_EQ(names(*object<FDefinitionGenInt>("Small")), (QStringList{"a", "b", "last"}));
    EXPECT_EQ(textOf("c.getEntryValue(\"x\")"), "5") << logText();
    EXPECT_EQ(object<FDefinitionGenInt>("Small")->getCurFile()->getName(), "a");
}

TEST_F(FGenIntDefinitionParserTest, aFullDiskLeavesTheFileThatIsThere) {
    ASSERT_TRUE(run(integration + ("d.save(\"" + path("d.lodm") + "\")")));
    const QString saved = read("d.lodm");
    // Cut in the entries, in the object area, in its last bytes; with more data than one buffer holds.
    for (const int length : {0, 50'000}) {
        ASSERT_TRUE(run("b.setContent(\"" + QString(length, 'x') + "\")"));
        for (const int limit : {100, saved.toUtf8().size() - 200 + length * 4 / 3}) {
            const int lines = log().size();
            {
                const FFileSizeLimit full(static_cast<rlim_t>(limit));
                EXPECT_FALSE(object<FDefinitionGenInt>("d")->save()) << limit;
                run("d.save()");
            }
            EXPECT_EQ(log().mid(lines).filter("can't be saved in \"" + path("d.lodm")).size(), 2) << limit;
            EXPECT_EQ(read("d.lodm"), saved);
            EXPECT_EQ(QDir(path()).entryList({"*.saving*"}), QStringList());
        }
    }
}

TEST_F(FGenIntDefinitionParserTest, savingLeavesFilesBesideAndFollowsTheLinkThatItIsGiven) {
    write("d.lodm.part", "the user's");
    write("d.lodm", "old");
    ASSERT_TRUE(QFile::link(path("d.lodm"), path("link.lodm")));
    QFile::setPermissions(path("d.lodm"), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(run(integration + ("d.save(\"" + path("link.lodm") + "\")")));
    EXPECT_EQ(read("d.lodm.part"), "the user's");
    EXPECT_EQ(QDir(path()).entryList(QDir::Files), (QStringList{"d.lodm", "d.lodm.part", "link.lodm"}));
    EXPECT_FALSE(QFile::permissions(path("d.lodm")) & QFile::ReadOther);
    EXPECT_TRUE(read("d.lodm").contains("</definition>"));
    EXPECT_TRUE(logHolds("d: the default of entry \"list\" names \"tail\", which isn't saved along"));
    EXPECT_FALSE(logHolds("\"wing\""));
}

TEST_F(FGenIntDefinitionParserTest, aConfigurationKeepsItsValuesAndDefaults) {
    ASSERT_TRUE(run(integration + QString(R"(
d.addEntry("a", 1)
d.addEntry("b", 2)
genericIntegrationConfiguration c() { .setDefinition(d); .setEntryValue("a", wing); .setEntryValue("b", tail) }
)")));
    const QStringList before = object<FConfigurationGenInt>("c")->furtherSavedCommands();
    QFile file(path("d.lodm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(object<FDefinitionGenInt>("d")->save({FExpr<FManaged>(object<FManaged>("c"))}, file));
    file.close();
    EXPECT_TRUE(logHolds("c: the value of entry \"b\" names \"tail\", which isn't saved along")) << logText();
    EXPECT_FALSE(logHolds("\"wing\""));
    FModelTest::clear();
    ASSERT_TRUE(run("parameter tail(4)\nx = importGenIntDefinition(\"" + path("d.lodm") + "\")"));
    const auto* configuration = object<FConfigurationGenInt>("c");
    EXPECT_EQ(configuration->furtherSavedCommands(), before);
    EXPECT_EQ(configuration->getValueEntry("G|stl")->getValue().toHistoryString(), "geometryExport(\"w.stl\",1,wing)");
}

TEST_F(FGenIntDefinitionParserTest, currentAndLastFileFollowTheirLines) {
    const QString files = "genericIntegrationCommandFile f() {}\ngenericIntegrationCommandFile g() {}\n";
    const auto current = [](const FDefinitionGenInt* definition) {
        return definition->getCurFile() ? definition->getCurFile()->getName() : QString("none");
    };
    EXPECT_EQ(current(readObjects(files)), "f");
    EXPECT_EQ(current(readObjects(files + "curFile : NULL\nlastFile : NULL\n")), "f_01");
    const FDefinitionGenInt* both = readObjects(files + "curFile : g\r\nlastFile : f");
    EXPECT_EQ(current(both), "g_02");
    EXPECT_EQ(both->getLastFile()->getName(), "f_02");
    EXPECT_EQ(current(readObjects("parameter p(1)\n" + files + "curFile : h")), "none")
        << "the first child is no template";
    for (const char* none : {"", "curFile : NULL\n", "parameter q(1)\n"}) {
        const FDefinitionGenInt* empty = readObjects(QString::fromLatin1(none));
        EXPECT_TRUE(empty->getFiles().isEmpty() && !empty->getCurFile());
    }
}

TEST_F(FGenIntDefinitionParserTest, theObjectAreaIsDataAndItsErrorsHaveTheirPlace) {
    ASSERT_TRUE(run("parameter p(1)"));
    const FDefinitionGenInt* definition = readObjects(
        "destroy(p)\ngenericIntegrationCommandFile f() { .setFileName(readText(\"/etc/hostname\")); .setFileNam(\"x\") "
        "}\n"
        "genericIntegrationComputation c() { .run() }\ngenericIntegrationCommandFile g() {\n");
    ASSERT_NE(definition, nullptr);
    EXPECT_EQ(names(*definition).value(0), "f");
    EXPECT_NE(object<FManaged>("p"), nullptr);
    EXPECT_TRUE(logHolds("definition:4:"));
    EXPECT_TRUE(logHolds("definition:5:") && logHolds("setFileNam"));
    EXPECT_TRUE(logHolds("definition:6:"));
    readObjects("genericIntegrationCommandFile h() {\n.setContent(\"[B64]YQ==?\")\n}\n");
    EXPECT_TRUE(log().last().contains("definition:5:2: setContent: the content of h is damaged")) << logText();
    const FProjectLoading loading;
    readObjects("genericIntegrationCommandFile i() { .setDbId(77777) }\n");
    EXPECT_NE(object<FManaged>("i")->getDbId(), 77777) << "the number may be another object's";
}

TEST_F(FGenIntDefinitionParserTest, importAsksForAFileAndRemembersIt) {
    write("d.lodm", "<definition version=\"1\" name=\"d\"/>");
    const auto import = [](const QString& name) { return FConfigurationGenInt::null()->importGenIntDefinition(name); };
    FChooser chooser;
    EXPECT_EQ(import({}), nullptr);
    EXPECT_EQ(chooser.asked,
              (QStringList{"Open LODM File", FPathManager::instance()->getSamplesDir(), "LODM Files (*.lodm *.xml)"}));
    EXPECT_FALSE(FIni().contains("LODM/import/path")) << "nothing was chosen";
    chooser.answer = path("d.lodm");
    ASSERT_NE(import({}), nullptr);
    chooser.answer.clear();
    EXPECT_EQ(import({}), nullptr);
    EXPECT_EQ(chooser.asked[1], path("d.lodm"));
    qputenv("MERIX_TEST_FOLDER", path().toLocal8Bit());
    EXPECT_EQ(import("${MERIX_TEST_FOLDER}/none%1.lodm"), nullptr);
    EXPECT_EQ(FIni().value("LODM/import/path").toString(), path("none%1.lodm"));
    EXPECT_TRUE(logHolds("Cannot read file " + path("none%1.lodm") + ":\nNo such file or directory."));
    write("sub/near.lodm", "<definition version=\"1\" name=\"near\"/>");
    write("sub/script", "importGenIntDefinition(\"near.lodm\")");
    run("include(\"" + path("sub/script") + "\")");
    EXPECT_NE(object<FDefinitionGenInt>("near"), nullptr) << "beside the script";
    EXPECT_EQ(FIni().value("LODM/import/path").toString(), "near.lodm");
    write("other.lodm", "<project/>");
    EXPECT_EQ(import(path("other.lodm")), nullptr);
    EXPECT_TRUE(logHolds("other.lodm:1:"));
}

}  // namespace
