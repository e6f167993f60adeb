#include "genericintegration/connector/layout/FItemRequests.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

#include <gmock/gmock.h>

namespace {

class FItemRequestsTest : public FModelTest {
 public:
    QStringList paths(const FItemRequests::List& requests) const {
        QStringList paths;
        for (const auto& request : requests) {
            paths.append(QDir(folder.path()).relativeFilePath(request->mPath));
        }
        return paths;
    }

    /** The paths of the items that are created. */
    static QStringList created(const FItemRequests::List& requests) {
        QStringList created;
        FItemRequests::createItems(
            requests, [](const FExpr<FObject>& type) { return type.getType()->isTypeOf(FGenIntFile::null()); },
            [&created](const FSoftConItemStructure& request) { created.append(request.mPath); });
        return created;
    }

    static FItemRequests::List requests(int count, qint64 size, const FExpr<FObject>& type) {
        FItemRequests::List list;
        for (int i = 0; i < count; ++i) {
            list.append(std::make_shared<FSoftConItemStructure>(type, QString("f%1").arg(i), QString(), size));
        }
        return list;
    }

    FTestFolder folder;
    const QString root = QFileInfo(folder.path()).canonicalFilePath();
    const FExpr<FObject> input = FInputFile::null();
    const FExpr<FObject> inputTemplate = FGenIntCommandFile::null();
};

TEST_F(FItemRequestsTest, foldersStandForTheirFiles) {
    folder.write("in/b", "12345");
    folder.write("in/sub/deep/c.dat", "");
    folder.write("in/a", "");
    QFile::link(root + "/in", folder.path("in/sub/loop"));
    const auto plain = FItemRequests::ofPaths({folder.path("in"), folder.path("new.txt")}, input, {}, false);
    EXPECT_EQ(paths(plain), (QStringList{"in/a", "in/b", "in/sub/deep/c.dat", "new.txt"}));
    EXPECT_EQ(plain[1]->mSize, 5);
    EXPECT_EQ(plain[1]->mRelativePath, root) << "the folder of what was given";
    EXPECT_EQ(plain[1]->mType, input);
    EXPECT_EQ(plain[3]->mPath, folder.path("new.txt")) << "also before it exists";

    const auto kept = FItemRequests::ofPaths({folder.path("in"), folder.path("new.txt")}, input, root + "/in", true);
    EXPECT_EQ(kept[0]->mRelativePath, "");
    EXPECT_EQ(kept[2]->mRelativePath, "sub/deep/");
    EXPECT_EQ(FItemRequests::ofPaths({"new.txt"}, input, {}, true)[0]->mRelativePath, "")
        << "no part of the name is lost";
}

TEST_F(FItemRequestsTest, aBatchHasAtMostSixtyItems) {
    EXPECT_EQ(created(requests(60, 0, input)).size(), 60);
    EXPECT_TRUE(log().empty()) << logText();
    EXPECT_EQ(created(requests(61, 0, input)).size(), 0);
    EXPECT_EQ(log(), QStringList("note: SoftwareConnector: 61 items should be created. It seems unlikely that so many "
                                 "files are needed. Item creation skipped."));
}

TEST_F(FItemRequestsTest, templatesHaveAtMostThirtyMegabytes) {
    constexpr qint64 most = 31457280;
    const auto list = requests(1, most, inputTemplate) + requests(2, most + 1, inputTemplate).mid(1) +
                      requests(3, most + 1, input).mid(2);
    EXPECT_EQ(created(list), (QStringList{"f0", "f2"})) << "the others of the batch are created";
    EXPECT_EQ(log(), QStringList("note: SoftwareConnector: File f1 has a size of 30MB. The file ist too big - max size "
                                 "of result value templates = 30 MB, item creation skipped."));
    EXPECT_EQ(FItemRequests::checkFileSize(most, {}), "");
    EXPECT_EQ(FItemRequests::checkFileSize(1073741824, {}), "1.02e+03MB");
    EXPECT_EQ(FItemRequests::checkFileSize(1073741825, {}), "1GB");
    EXPECT_EQ(log().size(), 1) << "nothing is logged without a name";
}

TEST_F(FItemRequestsTest, newResultsAreThoseThatTheRunWrote) {
    const QDateTime since = QDateTime::currentDateTime().addDays(-1);
    const auto write = [this, &since](const char* name, int seconds, QFile::Permissions more = {}) {
        QFile file(folder.write(name, "x", more));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_TRUE(file.setFileTime(since.addSecs(seconds), QFileDevice::FileModificationTime));
    };
    write("run/polar.csv", 10);
    write("run/late.vtk", 20);
    write("run/old.csv", 0);
    write("run/stdout.txt", 10);
    write("run/solver", 10, QFile::ExeUser);
    write("run/shown.dat", 10);
    write("run/sub/field.vtu", 10);
    QFile::link(folder.path("run"), folder.path("link"));
    QStringList asked;
    const auto found = FItemRequests::ofResults(folder.path("link/"), since, [&asked](const QString& path) {
        asked.append(path);
        return path == "shown.dat";
    });
    EXPECT_THAT(paths(found), testing::UnorderedElementsAre(QString("run/polar.csv"), QString("run/late.vtk"),
                                                            QString("run/sub/field.vtu")));
    EXPECT_LT(paths(found).indexOf("run/late.vtk"), paths(found).indexOf("run/polar.csv"));
    EXPECT_TRUE(asked.contains("sub/field.vtu"));
    EXPECT_EQ(found[0]->mRelativePath, root + "/run/");
    EXPECT_EQ(found[0]->mType, FExpr<FObject>(FResultsFileName::null()));
    EXPECT_TRUE(FItemRequests::ofResults(folder.path("none/"), since, {}).empty());
}

}  // namespace
