#include "host/core/FFile.h"

#include "host/core/FIni.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

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

TEST(FIniTest, keepsValuesInTheFileThatIsNamed) {
    const QTemporaryDir folder;
    FIni::setFile(folder.filePath("a/settings.ini"));
    FIni().setValue("LODM/import/path", "wing.lodm");
    EXPECT_EQ(FIni().value("LODM/import/path").toString(), "wing.lodm");
    FIni::setFile({});
    qputenv("MERIX_SETTINGS", folder.filePath("b.ini").toLocal8Bit());
    EXPECT_FALSE(FIni().contains("LODM/import/path"));
    EXPECT_EQ(FIni().fileName(), folder.filePath("b.ini"));
    qunsetenv("MERIX_SETTINGS");
}
