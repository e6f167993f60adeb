#include "host/run/FFileBytes.h"
#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>

namespace {

constexpr qint64 lineSize = 16;
constexpr qint64 largeSize = 4 * FFileBytes::mappedSize;

/** A large file of lines `force  1234567\n` that tests truncate and extend. */
class FFileBytesTest : public testing::Test {
 protected:
    FFileBytesTest() {
        QByteArray text;
        for (int line = 0; text.size() < largeSize; ++line) {
            text += "force  " + QByteArray::number(1'000'000 + line) + " \n";
        }
        mFile.open(QIODevice::ReadWrite);
        mFile.write(text);
        mFile.flush();
    }

    FFileBytes open() {
        auto file = std::make_unique<QFile>(mFile.fileName());
        file->open(QIODevice::ReadOnly);
        return FFileBytes(std::move(file));
    }

    static std::string_view lastLine(const FResultText& text) {
        return text.text().substr(static_cast<size_t>(text.index().lineBegin(text.trimmedSize())));
    }

    /** Reads each byte and the lines at some places, also after the bytes have changed. */
    static void readAll(const FResultText& text) {
        FUtf8::decode(text.text());
        for (qint64 offset = 0; offset < text.size(); offset += largeSize / 16) {
            EXPECT_LE(text.index().lineBegin(offset), offset);
            EXPECT_LE(text.index().lineFeed(offset), text.size());
        }
    }

    QTemporaryDir mFolder;
    QFile mFile{mFolder.filePath("out.txt")};
};

}  // namespace

TEST_F(FFileBytesTest, aFileThatGrowsIsReadAsItWas) {
    const FResultText text = FResultText::fromFile(open());
    const std::string last = "force  " + std::to_string(1'000'000 + largeSize / lineSize - 1) + " \n";
    EXPECT_EQ(last, lastLine(text));
    mFile.write("force 7\n");
    mFile.flush();
    EXPECT_EQ(last, lastLine(text));
    EXPECT_TRUE(text.isWhole());
    EXPECT_EQ("force 7\n", lastLine(FResultText::fromFile(open())));
}

TEST_F(FFileBytesTest, aFileTruncatedWhileItIsReadIsReported) {
    for (const qint64 size : {largeSize - 1, largeSize / 2 + 5, qint64(0)}) {
        mFile.resize(largeSize);
        FFileBytes beforeIndex = open();
        const FResultText afterIndex = FResultText::fromFile(open());
        EXPECT_TRUE(beforeIndex.isWhole() && afterIndex.isWhole());
        mFile.resize(size);
        readAll(afterIndex);
        readAll(FResultText::fromFile(std::move(beforeIndex)));
        EXPECT_FALSE(afterIndex.isWhole());
        mFile.resize(largeSize);
        EXPECT_EQ(size == largeSize - 1, afterIndex.isWhole()) << "a part that was read as zeros stays zeros";
    }
}

TEST_F(FFileBytesTest, theSignalOfOtherMappingsStillEndsTheProgram) {
    const FFileBytes guarded = open();
    uchar* const other = mFile.map(0, largeSize);
    mFile.resize(0);
    const pid_t child = fork();
    if (child == 0) {
        const volatile uchar byte = other[largeSize - 1];
        _exit(byte);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGBUS : WEXITSTATUS(status) != 0);
}
