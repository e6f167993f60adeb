#include "genericintegration/io/FUtf8Output.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

#include <vector>

namespace {

/// The bytes of a text that is written in pieces of the given lengths, the last one being repeated.
QByteArray bytesOf(QStringView text, const std::vector<int>& lengths) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    FUtf8Output output(buffer);
    for (std::size_t piece = 0; !text.isEmpty(); ++piece) {
        const int length = lengths[std::min(piece, lengths.size() - 1)];
        output.write(text.left(length));
        text = text.mid(std::min<qsizetype>(length, text.size()));
    }
    EXPECT_TRUE(output.finish());
    return buffer.data();
}

TEST(FUtf8OutputTest, givesTheBytesOfTheWholeTextHoweverItIsCut) {
    const QString lone = QChar(0xd83d);
    const QString text = QString::fromUtf8("aä€😀") + lone + "b" + QChar(0xde00) + QString(100000, 'x') + "😀" + lone;
    EXPECT_EQ(bytesOf(text, {1}), text.toUtf8());
    EXPECT_EQ(bytesOf(text, {4, 7, 100000}), text.toUtf8());
    for (int before = 32760; before < 32770; ++before) {
        const QString filled = QString(before, 'x') + QString::fromUtf8("😀😀ä") + lone;
        EXPECT_EQ(bytesOf(filled, {100000}), filled.toUtf8()) << before;
    }
}

TEST(FUtf8OutputTest, endsAtTheFirstNul) {
    const QString text = "ab" + QString(QChar('\0')) + "cd" + QString(100000, 'x');
    EXPECT_EQ(bytesOf(text, {1}), "ab");
    EXPECT_EQ(bytesOf(text, {100000}), "ab");
    EXPECT_EQ(bytesOf(QString(QChar('\0')) + "x", {5}), "");
}

TEST(FUtf8OutputTest, tellsOfAFullDisk) {
    QFile full("/dev/full");
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    FUtf8Output output(full);
    output.write(u"x");
    EXPECT_FALSE(output.finish());
}

}  // namespace
