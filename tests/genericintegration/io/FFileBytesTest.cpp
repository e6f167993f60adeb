#include "genericintegration/io/FFileBytes.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "FReaderCases.h"
#include "genericintegration/io/FResultText.h"
#include "genericintegration/io/FValueSearch.h"

namespace {

constexpr qint64 LineSize = 16;
constexpr qint64 LargeSize = 4 * FFileBytes::MappedSize;

/** A large file of lines `force  1234567\n` that tests cut and let grow. */
class FFileBytesTest : public testing::Test {
 protected:
    FFileBytesTest() {
        QByteArray text;
        for (int line = 0; text.size() < LargeSize; ++line) {
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

    static std::vector<FFoundValue> find(const FResultText& text) {
        const FAnchor anchor = {"Force", FAnchorOccurrence::Last};
        return FValueSearch({{"last", 0, 0, anchor, false, 0},
                             {"above", -70'000, 0, anchor, false, 0},
                             {"far", 200'000, 0, {}, false, 0},
                             {"mean", 0, 0, {}, true, 200'000}},
                            {})
            .find(text)
            .values;
    }

    QTemporaryDir mFolder;
    QFile mFile{mFolder.filePath("out.txt")};
};

}  // namespace

TEST_F(FFileBytesTest, aFileThatGrowsIsReadAsItWas) {
    const FResultText text = FResultText::fromFile(open());
    const qint64 last = 1'000'000 + LargeSize / LineSize - 1;
    EXPECT_EQ(last, find(text)[0].number);
    mFile.write("force 7\n");
    mFile.flush();
    EXPECT_EQ(last, find(text)[0].number);
    EXPECT_TRUE(text.isWhole());
    EXPECT_EQ(7, find(FResultText::fromFile(open()))[0].number);
}

TEST_F(FFileBytesTest, aFileThatIsCutWhileItIsReadIsTold) {
    for (const qint64 size : {LargeSize - 1, LargeSize / 2 + 5, qint64(0)}) {
        mFile.resize(LargeSize);
        FFileBytes beforeIndex = open();
        const FResultText afterIndex = FResultText::fromFile(open());
        EXPECT_TRUE(beforeIndex.isWhole() && afterIndex.isWhole());
        mFile.resize(size);
        find(afterIndex);
        find(FResultText::fromFile(std::move(beforeIndex)));
        EXPECT_FALSE(afterIndex.isWhole());
        mFile.resize(LargeSize);
        EXPECT_EQ(size == LargeSize - 1, afterIndex.isWhole()) << "what was read as zeros stays so";
    }
}

TEST_F(FFileBytesTest, theSignalOfOtherMappingsStillEndsTheProgram) {
    const FFileBytes guarded = open();
    uchar* const other = mFile.map(0, LargeSize);
    mFile.resize(0);
    const pid_t child = fork();
    if (child == 0) {
        const volatile uchar byte = other[LargeSize - 1];
        _exit(byte);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGBUS : WEXITSTATUS(status) != 0);
}

TEST(FFileBytesChangeTest, searchesStayWithinATextWhoseBytesChange) {
    for (quint32 seed = 0; seed < 2000; ++seed) {
        SCOPED_TRACE(seed);
        FReaderCases cases(seed);
        const QString content = cases.text(false);
        const QByteArray before = cases.file(content);
        const QByteArray after = cases.file(cases.text(false));
        std::vector<char> bytes(before.begin(), before.end());
        const FResultText text =
            FResultText::fromFile(QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size())));
        std::copy_n(after.begin(), std::min(before.size(), after.size()), bytes.begin());
        const std::vector<FValueDescription> values = cases.values(content);
        for (const FFoundValue& value : FValueSearch(values, cases.separators()).find(text).values) {
            EXPECT_LE(value.line, static_cast<qint64>(bytes.size()) + 1);
        }
    }
}
