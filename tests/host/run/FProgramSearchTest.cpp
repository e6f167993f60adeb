#include "host/run/FProgramSearch.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class FProgramSearchTest : public testing::Test {
 protected:
    QString make(const QString& name, bool executable) const {
        QFile file(mFolder.filePath(name));
        QDir(mFolder.path()).mkpath(QFileInfo(file).path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.setPermissions(executable ? file.permissions() | QFile::ExeOwner : file.permissions());
        return file.fileName();
    }

    FProgramSearch search(const QString& program, const QString& path) const {
        return FProgramSearch::search(program, mFolder.path(), path);
    }

    QTemporaryDir mFolder;
};

TEST_F(FProgramSearchTest, searchesThePathInItsOrder) {
    const QString plain = make("a/solver", false);
    const QString first = make("b/solver", true);
    make("c/solver", true);
    const QString base = mFolder.path();
    EXPECT_EQ(search("solver", base + "/a:" + base + "/b:" + base + "/c").file, first);
    EXPECT_EQ(search("solver", "b").file, first) << "relative to the working folder";
    EXPECT_EQ(search("solver", base + "/a:/no/such").notExecutable, plain);

    const FProgramSearch none = search("nothing", base + "/a:c");
    EXPECT_FALSE(none.isFound());
    EXPECT_TRUE(none.message().contains(base + "/a, " + base + "/c")) << none.message().toStdString();
}

TEST_F(FProgramSearchTest, takesANameWithASlashAsAPath) {
    const QString file = make("sub/solver", true);
    EXPECT_EQ(search(file, QString()).file, file);
    EXPECT_EQ(search("sub/solver", "/usr/bin").file, file);
    EXPECT_FALSE(search("./sh", "/bin").isFound());
    EXPECT_FALSE(search("sub/", "/bin").isFound());
}

}  // namespace
