#include "host/core/FFile.h"

#include <gtest/gtest.h>

#include <QDir>

TEST(FFileTest, expandsVariablesAndTheHomeFolder) {
    qputenv("MERIX_TEST_A", "/data");
    qputenv("MERIX_TEST_B", "$MERIX_TEST_A");
    EXPECT_EQ(FFile::resolveEnv("$MERIX_TEST_A/${MERIX_TEST_A}x/%MERIX_TEST_A%.lodm"), "/data//datax//data.lodm");
    EXPECT_EQ(FFile::resolveEnv("$MERIX_TEST_B"), "$MERIX_TEST_A") << "values aren't expanded in turn";
    EXPECT_EQ(FFile::resolveEnv("~/a~b"), QDir::homePath() + "/a~b");
    EXPECT_EQ(FFile::resolveEnv("~"), QDir::homePath());
    for (const char* name : {"", "~other/x", "$MERIX_NONE/${MERIX_NONE}/%MERIX_NONE%", "100%/50%", "$", "a$1", "${}"}) {
        EXPECT_EQ(FFile::resolveEnv(name), name);
    }
}
