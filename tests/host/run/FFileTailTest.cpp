#include "host/run/FFileTail.h"

#include "tests/support/FTestFolder.h"

namespace {

QString tailOf(const QByteArray& content, int lines) {
    const FTestFolder folder;
    return fileTail(folder.write("file", content), lines);
}

TEST(FFileTailTest, givesTheLastLines) {
    EXPECT_EQ(tailOf("one\r\ntwo\n\n \nthree\n", 2), QString("two\nthree"));
    EXPECT_EQ(tailOf("10 %\r20 %\rfailed", 2), QString("20 %\nfailed"));
    EXPECT_EQ(tailOf("one", 5), QString("one"));
    EXPECT_EQ(tailOf("", 5), QString());
    EXPECT_EQ(fileTail("/no/such/file", 5), QString());
    EXPECT_EQ(fileTail("/tmp", 5), QString());
}

TEST(FFileTailTest, takesAnyBytes) {
    constexpr char bytes[] = "a\xff-\0\x1b[31m\tgr\xc3\xbc\xc3\x9f";
    EXPECT_EQ(tailOf(QByteArray(bytes, sizeof bytes - 1), 1), QString::fromUtf8("a\uFFFD-\uFFFD\uFFFD[31m\tgrüß"));
}

TEST(FFileTailTest, readsABoundedPart) {
    EXPECT_EQ(tailOf(QByteArray(100'000, 'x') + "\nlast\n", 9), QString("last"));
    EXPECT_EQ(tailOf(QByteArray(100'000, 'x'), 9).size(), 4096);
}

}  // namespace
