#include "genericintegration/io/FUtf8Output.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

#include <random>
#include <vector>

namespace {

/** The bytes of a text written in pieces of the given lengths; the last length is repeated. */
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

/** Runs of units of one kind each, so that plain blocks start and end anywhere. */
QString randomText(std::mt19937& random) {
    static const QString kinds[] = {"a~ \n\x7f", QString::fromUtf8("\u0080äß\u07ff"),
                                    QString::fromUtf8("\u0800€\uffff"), QString::fromUtf8("😀𐀀"),
                                    QString(QChar(0xd83d)) + QChar(0xde00) + "x"};
    QString text(random() % 50 == 0 ? int(32700 + random() % 80) : 0, 'x');  // about the size of the buffer
    for (unsigned run = random() % 6; run > 0; --run) {
        const QString& kind = kinds[random() % 5];
        for (unsigned unit = random() % 150; unit > 0; --unit) {
            text += kind[int(random() % unsigned(kind.size()))];
        }
    }
    if (random() % 4 == 0) {
        text.insert(int(random() % unsigned(text.size() + 1)), QChar('\0'));
    }
    return text;
}

TEST(FUtf8OutputTest, agreesWithQtOnRandomTexts) {
    std::mt19937 random(7);
    for (int round = randomCases(2000); round > 0; --round) {
        const QString text = randomText(random);
        const int end = text.indexOf(QChar('\0'));
        const std::vector<int> lengths{1 + int(random() % 99), 1 + int(random() % 9), 1 + int(random() % 99999)};
        ASSERT_EQ(bytesOf(text, lengths), text.left(end < 0 ? text.size() : end).toUtf8()) << "round " << round;
    }
}

TEST(FUtf8OutputTest, reportsAFullDisk) {
    QFile full("/dev/full");
    ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    FUtf8Output output(full);
    output.write(u"x");
    EXPECT_FALSE(output.finish());
}

}  // namespace
