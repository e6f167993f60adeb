#include "host/lodm/FRunFolderFile.h"

#include "tests/support/FFileSizeLimit.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class FRunFolderFileTest : public testing::Test {
 protected:
    FRunFolderFileTest() { QDir(mRoot.path()).mkpath("run"); }
    QString path(const QString& name) const { return mRoot.filePath(name); }
    FRunFolderFile file(const QString& name) const { return FRunFolderFile(path("run"), name); }
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    void put(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir mRoot;
};

}  // namespace

TEST_F(FRunFolderFileTest, tellsOfAFullDiskAndLeavesWhatIsThere) {
    put("run/mesh", "old");
    put("source", QByteArray(20'000, 's'));
    for (const int size : {1'000, 20'000, 40'000}) {
        put("source", QByteArray(size, 's'));
        const FFileSizeLimit full(static_cast<rlim_t>(size - 1));
        EXPECT_NE(file("mesh").write(QByteArray(size, 'n')), "") << size;
        EXPECT_NE(file("mesh").copyFrom(path("source")), "") << size;
        EXPECT_EQ(content("run/mesh"), "old");
    }
    EXPECT_EQ(QDir(path("run")).entryList(QDir::Files), QStringList{"mesh"});
}

TEST_F(FRunFolderFileTest, writesNothingOutsideThroughLinks) {
    put("mine", "mine");
    QDir(mRoot.path()).mkpath("elsewhere");
    QDir(mRoot.path()).mkpath("run/inside");
    for (const char* name : {"written", "copied"}) {
        ASSERT_TRUE(QFile::link(path("mine"), path("run/") + name));
    }
    ASSERT_TRUE(QFile::link(path("elsewhere"), path("run/out")));
    ASSERT_TRUE(QFile::link(path("run/inside"), path("run/in")));
    put("source", "new");
    EXPECT_EQ(file("written").write("new"), "");
    EXPECT_EQ(file("copied").copyFrom(path("source")), "");
    EXPECT_EQ(content("run/written") + content("run/copied"), "newnew");
    EXPECT_EQ(content("mine"), "mine");
    for (const char* name : {"out/file", "out/deep/file", "out/../file"}) {
        EXPECT_TRUE(file(name).write("new").contains("outside the folder of the run")) << name;
        EXPECT_TRUE(file(name).copyFrom(path("source")).contains("outside the folder of the run")) << name;
    }
    EXPECT_TRUE(QDir(path("elsewhere")).isEmpty());
    EXPECT_EQ(content("file"), "none");
    EXPECT_EQ(file("in/deep/file").write("new"), "");
    EXPECT_EQ(content("run/inside/deep/file"), "new");
}
