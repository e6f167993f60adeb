#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <cmath>
#include <map>

namespace {

using Size = std::pair<quint32, quint32>;  // width and height in pixels

/** The size that the header of a PNG file tells; (0, 0) if the data isn't a PNG file from its begin to its end. */
Size sizeOfPng(const QByteArray& data) {
    const QByteArray begin = QByteArrayLiteral("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR");
    const QByteArray end = QByteArrayLiteral("\0\0\0\0IEND\xae\x42\x60\x82");
    if (!data.startsWith(begin) || !data.endsWith(end) || data.size() < begin.size() + 8 + end.size()) {
        return {0, 0};
    }
    const char* size = data.constData() + begin.size();
    return {qFromBigEndian<quint32>(size), qFromBigEndian<quint32>(size + 4)};
}

std::map<std::string, Size> sizesOfFilesAtRoot() {
    std::map<std::string, Size> sizes;
    for (const QString& name : QDir(QStringLiteral(":/")).entryList(QDir::Files)) {
        QFile file(QStringLiteral(":/") + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        sizes[name.toStdString()] = sizeOfPng(file.readAll());
    }
    return sizes;
}

/** The pictures of items have the proportion of a sheet of paper, but for the square ones of the list. */
Size pageOfWidth(quint32 width) {
    return {width, static_cast<quint32>(std::lround(std::sqrt(2.0) * width))};
}

std::map<std::string, Size> expectedSizes() {
    std::map<std::string, Size> sizes = {
        {"computationImage", {220, 60}},
        {"computationArrow", {220, 24}},  // of one width: the arrow stands below
        {"dashedVerticalLine", {1, 8}},
        {"softConTemplate_Small", {24, 24}},
    };
    for (const char* icon :
         {"genIntComp", "genIntConf", "genIntDef", "genIntSetUp", "softConIcon", "softConOverview", "scanForResults",
          "addFile", "softConItemSize_Small", "softConItemSize_Medium", "softConItemSize_Large"}) {
        sizes[icon] = {32, 32};
    }
    for (const std::string item : {"softConFileName", "softConFileNameRef", "softConExport", "softConImport"}) {
        sizes[item + "_Small"] = {24, 24};
        sizes[item + "_Medium"] = pageOfWidth(75);
        sizes[item + "_Large"] = pageOfWidth(150);
    }
    for (const char* border : {"hover_left", "hover_right", "pressed_left", "pressed_right"}) {
        sizes[std::string("buttonBorder_") + border] = {24, 24};
    }
    return sizes;
}

TEST(ImagesTest, standAtTheRootInTheSizesOfTheirUse) {
    EXPECT_EQ(sizesOfFilesAtRoot(), expectedSizes());
}

TEST(ImagesTest, noFolderButThatOfTheTextsStandsBesideThem) {
    QStringList folders = QDir(QStringLiteral(":/")).entryList(QDir::Dirs);
    folders.removeAll(QStringLiteral("qt-project.org"));
    EXPECT_EQ(folders, QStringList(QStringLiteral("documentation"))) << folders.join(' ').toStdString();
}

}  // namespace
