#include "host/run/FFileFollower.h"
#include "tests/support/FTestFolder.h"

namespace {

class FFileFollowerTest : public testing::Test {
 public:
    void append(const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::Append));
        file.write(bytes);
    }

    FTestFolder folder;
    QString path = folder.path("stdout.txt");
    FFileFollower follower{path};
};

}  // namespace

TEST_F(FFileFollowerTest, eachCallGivesWhatWasAppended) {
    EXPECT_EQ(follower.takeText(), "") << "there is no file yet";
    append("step 1\n");
    EXPECT_EQ(follower.takeText(), "step 1\n");
    EXPECT_EQ(follower.takeText(), "");
    // A character whose bytes come in two pieces, and bytes that are none.
    append("5 \xC2");
    EXPECT_EQ(follower.takeText(), "5 ");
    append("\xB5m \xFF\n");
    EXPECT_EQ(follower.takeText(), QString::fromUtf8("\u00B5m \uFFFD\n"));
    EXPECT_FALSE(follower.hasRestarted());
    EXPECT_EQ(follower.getLeftOut(), 0);
}

TEST_F(FFileFollowerTest, aShorterOrOtherFileIsReadFromItsBeginning) {
    append("a long first text \xC2");
    follower.takeText();
    folder.write("stdout.txt", "new\n");
    EXPECT_EQ(follower.takeText(), "new\n");
    EXPECT_TRUE(follower.hasRestarted());
    ASSERT_TRUE(QFile::rename(path, folder.path("aside")));
    folder.write("stdout.txt", "of the next run\n");
    EXPECT_EQ(follower.takeText(), "of the next run\n");
    EXPECT_TRUE(follower.hasRestarted());
}

TEST_F(FFileFollowerTest, ofMuchTextTheEndIsGivenFromTheStartOfALine) {
    append("first\n");
    follower.takeText();
    const QByteArray lines = QByteArray("a line of the output\n").repeated(10000);
    append(lines + "last\n");
    const QString text = follower.takeText();
    EXPECT_TRUE(text.startsWith("a line") && text.endsWith("output\nlast\n"));
    EXPECT_LE(text.size(), FFileFollower::most);
    EXPECT_EQ(follower.getLeftOut() + text.size(), lines.size() + 5);
    EXPECT_EQ(follower.takeText(), "");
    // Without a line end, at a character.
    append(QByteArray("\xC2\xB5").repeated(40000));
    EXPECT_EQ(follower.takeText(), QString(FFileFollower::most / 2, QChar(0xB5)));
}
