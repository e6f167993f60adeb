#include "host/core/FMerixCtrl.h"
#include "host/core/FUserInterface.h"
#include "host/lodm/FConfigurationCustom.h"
#include "host/run/FPathManager.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

namespace {

class FConfigurationCustomTest : public FDirectTest, public FTestFolder {
 protected:
    FConfigurationCustomTest() {
        (new FDefinitionCustom("def"))->registerObject();
        conf->registerObject();
        run("conf.setDefinition(def)\ndef.addEntry(\"mesh\", NULL, 1, 1, false, \"\", \"FInputFile\")");
    }
    /** Sets the entry `mesh` and copies into the folder "run". */
    bool copy(const QString& value) {
        run("conf.setEntryValue(\"mesh\", " + value + ")");
        return conf->copyInputFiles(path("run"));
    }

    FConfigurationCustom* conf = new FConfigurationCustom("conf");
};

TEST_F(FConfigurationCustomTest, inputFilesAreCopiedUnderTheNameThatTagsWrite) {
    const QByteArray bytes(3'000'000, '\x01');
    const QString mesh = write("mesh.dat", bytes);
    QFile(mesh).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\")").arg(mesh))) << logText();
    EXPECT_EQ(read("run/mesh.dat"), bytes);
    EXPECT_TRUE(QFile(path("run/mesh.dat")).permissions() & QFile::ExeOwner);
    // Again, over the one that is there, and into folders that aren't there yet.
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\")").arg(mesh)));
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\",\"a/b/\")").arg(mesh)));
    EXPECT_EQ(read("run/a/b/mesh.dat"), bytes);
    // A file that lies there already stays as it is.
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1/run/mesh.dat\")").arg(path())));
    EXPECT_EQ(read("run/mesh.dat"), bytes);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FConfigurationCustomTest, aRelativeNameIsRelativeToTheProject) {
    write("mesh.dat", "from the project");
    FMerixCtrl::instance()->setProjectFile(path("p.mrx"));
    EXPECT_TRUE(copy("inputFile(\"mesh.dat\")"));
    EXPECT_EQ(read("run/mesh.dat"), "from the project");
}

TEST_F(FConfigurationCustomTest, whatCannotBeCopiedIsToldAndStops) {
    const QString mesh = write("mesh.dat", "x");
    write("taken", "a file where a folder has to be");
    const QList<QStringList> failures{{"inputFile(\"" + path("none.dat") + "\")", "can't read \"" + path("none.dat")},
                                      {"inputFile(\"" + path() + "\")", "it is a folder"},
                                      {"inputFile(NULL)", "no file is named"},
                                      {"inputFile(\"" + mesh + "\",\"..\")", "\"../mesh.dat\" would be outside"},
                                      {"inputFile(\"" + mesh + "\",\"a/../../b\")", "would be outside"},
                                      {"inputFile(\"" + mesh + "\",\"..\\\\\")", "would be outside"},
                                      {"inputFile(\"" + mesh + "\",\"../taken/x\")", "would be outside"},
                                      {"inputFile(\"" + mesh + "\",\"mesh.dat/x\")", "can't create the folder"}};
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\")").arg(mesh)));
    for (const QStringList& failure : failures) {
        EXPECT_FALSE(copy(failure[0])) << failure[0].toStdString();
        EXPECT_TRUE(log().last().contains("entry \"mesh\": ") && log().last().contains(failure[1]))
            << log().last().toStdString();
    }
    EXPECT_EQ(QDir(path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{"mesh.dat", "run", "taken"}));
}

TEST_F(FConfigurationCustomTest, exportsGoIntoTheFolderOfTheRun) {
    const FRunScope scope(path("run/"));
    run("parameter a(2)\nparameter b(2*a)\ndef.addEntry(\"g\", NULL, 1, 1, false, \"\", \"FGeometryExport\")");
    EXPECT_TRUE(conf->doExports());
    run("conf.setEntryValue(\"g\", geometryExport(\"geo/wing.txt\", 0, [a, b]))");
    EXPECT_TRUE(conf->doExports());
    EXPECT_TRUE(read("run/geo/wing.txt").contains("parameter b() {\n    .setValue(2*a);"));
    run("conf.setEntryValue(\"g\", geometryExport(\"one.txt\", 1, a))");
    EXPECT_TRUE(conf->doExports());
    EXPECT_FALSE(read("run/one.txt").contains("parameter b"));
    EXPECT_EQ(log(), QStringList());
    run("conf.setEntryValue(\"g\", geometryExport(\"../one.txt\", 1, a))");
    EXPECT_FALSE(conf->doExports());
    EXPECT_TRUE(logHolds("\"../one.txt\" would be outside the folder of the run"));
}

TEST_F(FConfigurationCustomTest, aSetUpStartsWithTheDefaultsOfItsDefinition) {
    run("def.addEntry(\"height\", 40)\nconf.setEntryValue(\"height\", 41)");
    auto* other = new FDefinitionCustom("other");
    other->registerObject();
    run("other.addEntry(\"height\", 50)\nother.addEntry(\"width\", 60)");
    EXPECT_EQ(conf->createSetUp(FExpr<FDefinitionCustom>(other)), conf);
    EXPECT_EQ(conf->getDefinition().ptr(), other);
    EXPECT_EQ(textOf("[conf.getEntryValue(\"height\"), conf.getEntryValue(\"width\")]"), "[50,60]");
    EXPECT_TRUE(conf->createSetUp({})->getEntryMap().isEmpty());
}

TEST_F(FConfigurationCustomTest, windowsShowPreviewsAndEditors) {
    struct Previewed : FConfigurationCustom {
        QMap<QString, QString> getPreview() override { return {{"a.inp", "span 3"}, {"b.inp", ""}}; }
    };
    auto* previewed = new Previewed;
    previewed->registerObject();
    previewed->preview();
    EXPECT_TRUE(logHolds("a.inp: 6 characters") && logHolds("b.inp: 0 characters")) << logText();
    EXPECT_EQ(conf->getObjectEditor(), nullptr);
    struct Windows : FUserInterface {
        QObject* getObjectEditor(const FExprBase& object) override {
            edited = object;
            return &editor;
        }
        QObject editor;
        FExprBase edited;
    } windows;
    FUserInterface::replace(&windows);
    EXPECT_EQ(conf->getObjectEditor(), &windows.editor);
    EXPECT_EQ(windows.edited.getStored(), conf);
    FUserInterface::replace(nullptr);
}

}  // namespace
