#include "host/core/FNearestName.h"

#include <gtest/gtest.h>

#include <utility>

TEST(FNearestNameTest, closeNamesAreFound) {
    const QStringList known = {"setFileName", "setFiles", "addEntry", "run", "Run", "span"};
    const std::pair<const char*, const char*> cases[] = {{"setFile", "setFiles"},
                                                         {"etFiles", "setFiles"},
                                                         {"setFlies", "setFiles"},
                                                         {"xsetFilesx", "setFiles"},
                                                         {"SETFILES", "setFiles"},
                                                         {"SetFilNaem", "setFileName"},
                                                         {"dadEnrty", "addEntry"},
                                                         {"dadEntr", "addEntry"},
                                                         {"ddaEnrty", ""},
                                                         {"setFoles12", ""},
                                                         {"Rnu", "Run"},
                                                         {"rum", "run"},
                                                         {"spam", "span"},
                                                         {"sp", ""},
                                                         {"", ""},
                                                         {"spanspan", ""}};
    for (const auto& [name, nearest] : cases) {
        EXPECT_EQ(nearestName(name, known).toStdString(), nearest) << name;
    }
}

TEST(FNearestNameTest, longNamesCostLinearTime) {
    const QString name = QString("ab").repeated(500000);
    EXPECT_EQ(nearestName("b" + name, {name, name + "a"}), name);
}
