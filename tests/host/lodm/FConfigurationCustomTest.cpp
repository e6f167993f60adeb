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
    FMerixCtrl::instance()->setProjectFile(path("p.mrx"));
    write("edge.csv", "5,6,7");
    write("a.stl", "solid a\nendsolid a");
    write("b.stl", QByteArray(80, ' ') + QByteArray(4, '\0'));
    const auto exported = [this](const QString& value) {
        run("conf.setEntryValue(\"g\", geometryExport(" + value + "))");
        return conf->doExports();
    };
    run(R"(
point a(1, 2.5, -3e-7); point b(); curve edge("edge.csv"); triangles shell("a.stl"); triangles binary("b.stl")
entityGroup group() { .setEntities([edge, b]) }
featureDefinition feature() { .setEntities([a, group]) }
featureMember second() { .setFeature(feature); .setIndex(1) }
parameter number(2)
def.addEntry("g", NULL, 1, 1, false, "", "FGeometryExport"))");
    EXPECT_TRUE(conf->doExports());
    EXPECT_TRUE(exported("\"geo/wing.csv\", 0, [a, second, a]"));
    EXPECT_EQ(read("run/geo/wing.csv"), "1,2.5,-3e-07\n5,6,7\n0,0,0\n");
    EXPECT_TRUE(exported("\"one.CSV\", 1, feature"));
    EXPECT_EQ(read("run/one.CSV"), read("run/geo/wing.csv"));
    EXPECT_TRUE(exported("\"b.stl\", 0, [binary]"));
    EXPECT_EQ(read("run/b.stl"), read("b.stl"));
    EXPECT_TRUE(exported("\"two.stl\", 0, [shell, shell]"));
    EXPECT_EQ(read("run/two.stl"), "solid a\nendsolid a");
    EXPECT_EQ(log(), QStringList());
    QFile::remove(path("edge.csv"));
    const QList<QStringList> failures{
        {"\"../one.csv\", 0, [a]", "\"../one.csv\" would be outside the folder of the run"},
        {"\"a.txt\", 0, [a]", "\"a.txt\", ends neither in .csv"},
        {"\"\", 0, [a]", "\"\", ends neither in .csv"},
        {"\"a.stl\", 0, [a]", "a (FPoint) can't be written to \"a.stl\""},
        {"\"a.csv\", 0, [a, number]", "number (FParameter) can't be written"},
        {"\"a.csv\", 0, [edge]", "the file of edge (FCurve) doesn't exist: " + path("edge.csv")},
        {"\"a.stl\", 0, [shell, binary]", "b.stl\" is a binary file"},
        {"\"a.csv\", 0, []", "has no geometry"}};
    for (const QStringList& failure : failures) {
        EXPECT_FALSE(exported(failure[0])) << failure[0].toStdString();
        EXPECT_TRUE(log().last().contains("entry \"g\": ") && log().last().contains(failure[1]))
            << log().last().toStdString();
    }
    EXPECT_FALSE(has("run/a.csv") || has("run/a.stl"));
}

TEST_F(FConfigurationCustomTest, noFileReplacesTheOneOfAnotherEntry) {
    write("a/m.csv", "a");
    write("b/m.csv", "b");
    FMerixCtrl::instance()->setProjectFile(path("p.mrx"));
    run("point p()\ndef.addEntry(\"other\", inputFile(\"a/m.csv\"))");
    EXPECT_TRUE(copy("inputFile(\"b/../a/m.csv\")")) << "the same file";
    EXPECT_TRUE(copy("inputFile(\"b/m.csv\", \"sub\")"));
    EXPECT_EQ(log(), QStringList());
    for (const char* value :
         {"inputFile(\"b/m.csv\")", "inputFile(\"b/m.csv\", \"/.\")", "geometryExport(\"m.csv\", 0, [p])"}) {
        EXPECT_FALSE(copy(value)) << value;
        EXPECT_TRUE(log().last().contains("entry \"other\": its file would replace that of the entry \"mesh\""))
            << logText();
    }
    EXPECT_EQ(read("run/m.csv"), "a");
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
