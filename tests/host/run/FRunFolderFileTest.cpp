#include "host/run/FRunFolderFile.h"
#include "tests/support/FFileSizeLimit.h"
#include "tests/support/FTestFolder.h"

namespace {

class FRunFolderFileTest : public testing::Test, public FTestFolder {
 protected:
    FRunFolderFileTest() { QDir(path()).mkpath("run"); }
    FRunFolderFile file(const QString& name) const { return FRunFolderFile(path("run"), name); }
};

}  // namespace

TEST_F(FRunFolderFileTest, tellsOfAFullDiskAndLeavesWhatIsThere) {
    write("run/mesh", "old");
    write("source", QByteArray(20'000, 's'));
    for (const int size : {1'000, 20'000, 40'000}) {
        write("source", QByteArray(size, 's'));
        const FFileSizeLimit full(static_cast<rlim_t>(size - 1));
        EXPECT_NE(file("mesh").write(QByteArray(size, 'n')), "") << size;
        EXPECT_NE(file("mesh").copyFrom(path("source")), "") << size;
        EXPECT_EQ(read("run/mesh"), "old");
    }
    EXPECT_EQ(QDir(path("run")).entryList(QDir::Files), QStringList{"mesh"});
}

TEST_F(FRunFolderFileTest, writesNothingOutsideThroughLinks) {
    write("mine", "mine");
    write("source", "new");
    QDir(path()).mkpath("elsewhere");
    QDir(path()).mkpath("run/inside");
    for (const auto& [target, link] : {std::pair("mine", "written"), {"mine", "copied"}, {"elsewhere", "out"}}) {
        ASSERT_TRUE(QFile::link(path(target), path("run/") + link));
    }
    EXPECT_EQ(file("written").write("new"), "");
    EXPECT_EQ(file("copied").copyFrom(path("source")), "");
    EXPECT_EQ(read("run/written") + read("run/copied") + read("mine"), "newnewmine");
    for (const char* name : {"out/file", "out/deep/file", "out/../file"}) {
        EXPECT_TRUE(file(name).write("new").contains("outside the folder of the run")) << name;
        EXPECT_TRUE(file(name).copyFrom(path("source")).contains("outside the folder of the run")) << name;
    }
    EXPECT_TRUE(QDir(path("elsewhere")).isEmpty());
    ASSERT_TRUE(QFile::link(path("run/inside"), path("run/in")));
    EXPECT_EQ(file("in/deep/file").write("new"), "");
    EXPECT_EQ(read("run/inside/deep/file"), "new");
}
