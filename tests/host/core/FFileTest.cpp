#include "host/core/FFile.h"

#include <gtest/gtest.h>

#include <QDir>

#include <algorithm>

namespace {

/** Two and a half blocks of bytes; notes how many were requested at once. */
class FNotingDevice : public QIODevice {
 public:
    FNotingDevice() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
    bool isSequential() const override { return true; }

    qint64 mLargest = 0;

 protected:
    qint64 readData(char* data, qint64 size) override {
        mLargest = std::max(mLargest, size);
        const qint64 count = std::min(size, mLeft);
        std::fill(data, data + count, 'x');
        mLeft -= count;
        return count;
    }
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
    qint64 mLeft = 2'500'000;
};

}  // namespace

TEST(FFileTest, expandsVariablesAndTheHomeFolder) {
    qputenv("MERIX_TEST_A", "/data");
    qputenv("MERIX_TEST_B", "$MERIX_TEST_A");
    EXPECT_EQ(FFile::resolveEnv("$MERIX_TEST_A/${MERIX_TEST_A}x/%MERIX_TEST_A%.lodm"), "/data//datax//data.lodm");
    EXPECT_EQ(FFile::resolveEnv("$MERIX_TEST_B"), "$MERIX_TEST_A") << "values aren't expanded in turn";
    EXPECT_EQ(FFile::resolveEnv("~/a~b"), QDir::homePath() + "/a~b");
    EXPECT_EQ(FFile::resolveEnv("~"), QDir::homePath());
    const QByteArray home = qgetenv("HOME");
    qunsetenv("HOME");
    EXPECT_EQ(FFile::resolveEnv("~/a"), "~/a") << "and not a file of the root folder";
    qputenv("HOME", home);
    for (const char* name : {"", "~other/x", "$MERIX_NONE/${MERIX_NONE}/%MERIX_NONE%", "100%/50%", "$", "a$1", "${}"}) {
        EXPECT_EQ(FFile::resolveEnv(name), name);
    }
}

TEST(FFileTest, readingTakesTheMemoryOfWhatIsThere) {
    FNotingDevice device;
    EXPECT_EQ(FFile::readAtMost(device, qint64{1} << 29U), QByteArray(2'500'000, 'x'));
    EXPECT_LE(device.mLargest, qint64{1} << 20U);
    FNotingDevice other;
    EXPECT_EQ(FFile::readAtMost(other, 7).size(), 7);
}
