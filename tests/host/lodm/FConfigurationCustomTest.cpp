#include "host/lodm/FConfigurationCustom.h"

#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/run/FPathManager.h"
#include "tests/support/FModelTest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class FConfigurationCustomTest : public FModelTest {
 protected:
    FConfigurationCustomTest() {
        (new FDefinitionCustom("def"))->registerObject();
        conf->registerObject();
        run("conf.setDefinition(def)\ndef.addEntry(\"mesh\", NULL, 1, 1, false, \"\", \"FInputFile\")");
    }
    QString write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QByteArray read(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    /** Sets the entry `mesh` and copies into the folder "run". */
    bool copy(const QString& value) {
        run("conf.setEntryValue(\"mesh\", " + value + ")");
        return conf->copyInputFiles(folder.filePath("run"));
    }

    QTemporaryDir folder;
    FConfigurationCustom* conf = new FConfigurationCustom("conf");
};

TEST_F(FConfigurationCustomTest, inputFilesAreCopiedUnderTheNameThatTagsWrite) {
    const QByteArray bytes(3'000'000, '\x01');
    const QString path = write("mesh.dat", bytes);
    QFile(path).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\")").arg(path))) << log().join('\n').toStdString();
    EXPECT_EQ(read("run/mesh.dat"), bytes);
    EXPECT_TRUE(QFile(folder.filePath("run/mesh.dat")).permissions() & QFile::ExeOwner);
    // Again, over the one that is there, and into folders that aren't there yet.
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\")").arg(path)));
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\",\"a/b/\")").arg(path)));
    EXPECT_EQ(read("run/a/b/mesh.dat"), bytes);
    // A file that lies there already stays as it is.
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1/run/mesh.dat\")").arg(folder.path())));
    EXPECT_EQ(read("run/mesh.dat"), bytes);
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FConfigurationCustomTest, aRelativeNameIsRelativeToTheProject) {
    write("mesh.dat", "from the project");
    FMerixCtrl::instance()->setProjectFile(folder.filePath("p.mrx"));
    EXPECT_TRUE(copy("inputFile(\"mesh.dat\")"));
    FMerixCtrl::instance()->setProjectFile(QString());
    EXPECT_EQ(read("run/mesh.dat"), "from the project");
}

TEST_F(FConfigurationCustomTest, whatCannotBeCopiedIsToldAndStops) {
    const QString path = write("mesh.dat", "x");
    write("taken", "a file where a folder has to be");
    const QList<QStringList> failures{
        {"inputFile(\"" + folder.filePath("none.dat") + "\")", "can't read \"" + folder.filePath("none.dat")},
        {"inputFile(\"" + folder.path() + "\")", "it is a folder"},
        {"inputFile(NULL)", "names no file"},
        {"inputFile(\"" + path + "\",\"..\")", "\"../mesh.dat\" would lie outside"},
        {"inputFile(\"" + path + "\",\"a/../../b\")", "would lie outside"},
        {"inputFile(\"" + path + "\",\"..\\\\\")", "would lie outside"},
        {"inputFile(\"" + path + "\",\"../taken/x\")", "would lie outside"},
        {"inputFile(\"" + path + "\",\"mesh.dat/x\")", "can't make the folder"}};
    ASSERT_TRUE(copy(QStringLiteral("inputFile(\"%1\")").arg(path)));
    for (const QStringList& failure : failures) {
        EXPECT_FALSE(copy(failure[0])) << failure[0].toStdString();
        EXPECT_TRUE(log().last().contains("entry \"mesh\": ") && log().last().contains(failure[1]))
            << log().last().toStdString();
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{"mesh.dat", "run", "taken"}));
}

TEST_F(FConfigurationCustomTest, exportsGoIntoTheFolderOfTheRun) {
    const FRunScope scope(folder.filePath("run/"));
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
    EXPECT_TRUE(logHolds("\"../one.txt\" would lie outside the folder of the run"));
}

TEST_F(FConfigurationCustomTest, resultFileNamesAreTheValuesOfEntries) {
    run("def.addEntry(\"b\", resultsFileName(\"b.vtk\"))\ndef.addEntry(\"n\", 1)\n"
        "def.addEntry(\"Imports|a\", resultsFileName(\"a.txt\", 3))\ndef.addEntry(\"m\", inputFile(\"m\"))");
    const QList<FExpr<FResultsFileName>> names = conf->getResultsFileNames();
    ASSERT_EQ(names.size(), 2);
    EXPECT_EQ(names[0]->getFileNameText(), "b.vtk");
    EXPECT_EQ(names[1]->getType(), ResultsFileType::Text);
}

TEST_F(FConfigurationCustomTest, theDefinitionIsTypedAndPreviewsNameWhatThereIs) {
    EXPECT_NE(FObject::getPrototype("FAttribCmdFConfigurationCustomsetDefinitionFDefinitionCustom"), nullptr);
    run("parameter p(1)\nconf.setDefinition(p)");
    EXPECT_TRUE(logHolds("must be of type FDefinitionCustom"));
    EXPECT_TRUE(conf->getDefinition());
    run("conf.setDefinition(NULL)");
    EXPECT_FALSE(conf->getDefinition());
    run("conf.getPreviewText(\"in.dat\")");
    EXPECT_TRUE(logHolds("conf writes no file \"in.dat\""));
    EXPECT_FALSE(conf->isGenInt());
}

}  // namespace
