#include "host/core/FInitPrototype.h"
#include "host/core/FUserInterface.h"
#include "host/lodm/FImport.h"
#include "host/run/FPathManager.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

namespace {

class FLineImport : public FClass<FLineImport, FImport> {
 public:
    static FClassData mClass;

    explicit FLineImport(const QString& name = QString()) : FClass(name) {
        mCaption = "Import Lines";
        mFilter = "Lines (*.txt)";
    }

    QStringList calls;

 protected:
    void reset() override { calls.append("reset"); }
    void doImport(QFile& file, bool flag) override { calls.append(file.readAll() + (flag ? " with" : " without")); }
};

FClassData FLineImport::mClass("FLineImport", &FImport::mClass);
const FInitPrototypes<FLineImport> types;

class FChooser : public FUserInterface {
 public:
    FChooser() { FUserInterface::replace(this); }
    ~FChooser() override { FUserInterface::replace(nullptr); }
    QString askOpenFile(const QString& caption, const QString& startPath, const QString& filter) override {
        questions.append(caption + "|" + startPath + "|" + filter);
        return answer;
    }

    QString answer;
    QStringList questions;
};

class FImportTest : public FDirectTest, public FTestFolder {
 protected:
    FImportTest() { import->registerObject(); }

    FLineImport* import = new FLineImport("lines");
};

TEST_F(FImportTest, aScriptReadsAFileBesideItOrOneThatTheUserChooses) {
    write("sub/a.txt", "a");
    write("sub/script", "lines.read(\"a.txt\", true)");
    qputenv("MERIX_TEST_LINES", path("sub").toUtf8());
    ASSERT_TRUE(run("include(\"" + path("sub/script") + "\")\nlines.read(\"$MERIX_TEST_LINES/a.txt\")"));
    EXPECT_EQ(import->getCurrentDir(), FPathManager::instance()->getSamplesDir());
    FChooser chooser;
    chooser.answer = path("sub/a.txt");
    EXPECT_EQ(import->read(QString(), false)->count(), 0);
    chooser.answer.clear();
    import->read(QString(), false);
    EXPECT_EQ(chooser.questions,
              (QStringList{"Import Lines|" + FPathManager::instance()->getSamplesDir() + "|Lines (*.txt)",
                           "Import Lines|" + path("sub") + "|Lines (*.txt)"}));
    EXPECT_EQ(import->calls, (QStringList{"reset", "a with", "reset", "a without", "reset", "a without"}));
    // Neither is an ordinary file that can be read.
    for (const QString& name : {path("none.txt"), path("sub")}) {
        EXPECT_TRUE(import->read(name, false)) << name.toStdString();
    }
    EXPECT_EQ(import->calls.size(), 6);
    EXPECT_EQ(log(), QStringList());
}

}  // namespace
