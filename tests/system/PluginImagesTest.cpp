#include <gtest/gtest.h>

#include <QFile>
#include <QLibrary>

namespace {

TEST(PluginImagesTest, comeWithTheModule) {
    const QString image = QStringLiteral(":/softConIcon");
    EXPECT_FALSE(QFile::exists(image));
    QLibrary module(QStringLiteral(MERIX_PLUGIN));
    ASSERT_TRUE(module.load()) << module.errorString().toStdString();
    EXPECT_TRUE(QFile::exists(image));
}

}  // namespace
