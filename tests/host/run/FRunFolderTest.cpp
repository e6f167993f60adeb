#include "host/run/FRunFolder.h"
#include "tests/support/FTestFolder.h"

#include <sys/stat.h>

namespace {

class FRunFolderTest : public testing::Test, public FTestFolder {
 protected:
    bool moveAside(FRunFolder& folder, const QStringList& named) {
        mReason.clear();
        return folder.moveAside(named, mReason);
    }
    FRunFolder folder() const { return FRunFolder(path("run"), path(".earlier/run")); }

    QString mReason;
};

}  // namespace

TEST_F(FRunFolderTest, movesWhatRunsLeftAndNothingElse) {
    write("run/mesh.grd", "the user's");
    write("run/out.dat", "from another time");
    write("outside", "untouched");
    FRunFolder first = folder();
    ASSERT_TRUE(moveAside(first, {"out.dat", "missing", "../outside", ""}));
    EXPECT_FALSE(has("run/out.dat"));
    EXPECT_EQ(read(".earlier/run/out.dat"), "from another time");

    write("run/out.dat", "first");
    write("run/deep/er/field.plt", "first");
    write(QString::fromUtf8("run/ä \n \".dat"), "first");
    QFile::link("nowhere", path("run/dead link"));
    QFile::setPermissions(path("run/deep/er"), QFile::ReadOwner | QFile::ExeOwner);
    first.noteLeft();

    write("run/by hand.txt", "between the runs");
    FRunFolder second = folder();
    ASSERT_TRUE(moveAside(second, {"out.dat"})) << mReason.toStdString();
    EXPECT_EQ(QDir(path("run")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
              QStringList({"by hand.txt", "mesh.grd"}));
    EXPECT_EQ(read(".earlier/run/out.dat"), "first");
    EXPECT_EQ(read(".earlier/run/deep/er/field.plt"), "first");
    EXPECT_EQ(read(QString::fromUtf8(".earlier/run/ä \n \".dat")), "first");

    second.noteLeft();
    FRunFolder third = folder();
    ASSERT_TRUE(moveAside(third, {"out.dat"}));
    EXPECT_FALSE(has(".earlier/run/out.dat")) << "one run back, not two";
    EXPECT_EQ(read("outside"), "untouched");
    EXPECT_EQ(read("run/mesh.grd"), "the user's");
}

TEST_F(FRunFolderTest, movesWhatAnInterruptedRunMayHaveWritten) {
    write("run/mesh.grd", "the user's");
    write("run/table.dat", "the user's");
    FRunFolder killed = folder();
    ASSERT_TRUE(moveAside(killed, {"out.dat"}));
    write("run/deep/restart", "half");
    write("run/table.dat", "overwritten by the program");
    for (int run = 0; run < 2; ++run) {
        FRunFolder next = folder();
        ASSERT_TRUE(moveAside(next, {"out.dat"}));
        EXPECT_EQ(next.leftByInterruption(), run == 0 ? 3 : 0) << "also after a second interruption";
        EXPECT_EQ(QDir(path("run")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("mesh.grd"));
    }
    FRunFolder ended = folder();
    ASSERT_TRUE(moveAside(ended, {}));
    ended.noteLeft();
    write("run/by hand.txt", "after the end");
    FRunFolder last = folder();
    ASSERT_TRUE(moveAside(last, {}));
    EXPECT_TRUE(has("run/by hand.txt"));
}

TEST_F(FRunFolderTest, saysWhatCanNotBeMoved) {
    write("run/out.dat", "old");
    write(".earlier", "a file where a folder is needed");
    FRunFolder blocked = folder();
    EXPECT_FALSE(moveAside(blocked, {"out.dat"}));
    EXPECT_TRUE(mReason.contains(path("run/out.dat"))) << mReason.toStdString();
    EXPECT_TRUE(mReason.endsWith("'" + path(".earlier") + "' is no folder, remove it.")) << mReason.toStdString();
    EXPECT_EQ(read("run/out.dat"), "old");

    // Nobody writes to it.
    QFile::remove(path(".earlier"));
    QDir(path()).mkpath(".earlier/run");
    for (const QString& notes :
         {FRunFolder::notesFile(path(".earlier/run")), FRunFolder::beforeFile(path(".earlier/run"))}) {
        ASSERT_EQ(::mkfifo(QFile::encodeName(notes).constData(), 0600), 0);
    }
    EXPECT_TRUE(moveAside(blocked, {"out.dat"})) << mReason.toStdString();

    write("file", "");
    FRunFolder impossible(path("file/run"), path("file/.earlier"));
    EXPECT_FALSE(moveAside(impossible, {}));
    EXPECT_TRUE(mReason.contains(path("file/run"))) << mReason.toStdString();
}

TEST_F(FRunFolderTest, followsNoLinkToWhatIsNotItsOwn) {
    write("other/run/mine.txt", "mine");
    write("run/own.dat", "old");
    ASSERT_TRUE(QFile::link(path("other/run"), path("run/out")));
    FRunFolder through = folder();
    EXPECT_FALSE(moveAside(through, {"own.dat", "out/mine.txt"}));
    EXPECT_TRUE(mReason.contains("'out/mine.txt' would be outside")) << mReason.toStdString();
    for (const char* link : {".earlier", ".earlier/run"}) {
        QDir(path(".earlier")).removeRecursively();
        QDir(path()).mkpath(QFileInfo(path(link)).path());
        ASSERT_TRUE(QFile::link(path(link == QLatin1String(".earlier") ? "other" : "other/run"), path(link)));
        write("run/own.dat", "old");
        FRunFolder replaced = folder();
        EXPECT_TRUE(moveAside(replaced, {"own.dat"}));
        EXPECT_EQ(read("other/run/mine.txt"), "mine");
        EXPECT_EQ(read(".earlier/run/own.dat"), "old");
        EXPECT_FALSE(has("other/run/own.dat"));
    }
    ASSERT_TRUE(QFile::link(path("other/run"), path("linked")));
    FRunFolder linked(path("linked"), path(".earlier/linked"));
    EXPECT_FALSE(moveAside(linked, {"mine.txt"}));
    EXPECT_TRUE(mReason.contains("is a link to '" + path("other/run"))) << mReason.toStdString();
    EXPECT_EQ(read("other/run/mine.txt"), "mine");
    ASSERT_TRUE(QFile::link(path("other"), path("disk")));
    FRunFolder onOtherDisk(path("disk/baseline/solver"), path("disk/baseline/.earlier/solver"));
    EXPECT_TRUE(moveAside(onOtherDisk, {}));
    FRunFolder linkedDesign(path("disk/run"), path("disk/.earlier/run"));
    EXPECT_FALSE(moveAside(linkedDesign, {})) << "the folder that contains it is a link";
    EXPECT_TRUE(mReason.contains("is a link to '" + path("other"))) << mReason.toStdString();
}
