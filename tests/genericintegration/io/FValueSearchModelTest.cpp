#include "FLiteralReader.h"
#include "FReaderCases.h"
#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FValueSearch.h"
#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <bit>

namespace {

quint32 caseCount() {
    return static_cast<quint32>(randomCases(2000));
}

/** The content at the place where a value was found. */
QString textAt(const QString& content, const FFoundValue& value, int length) {
    const QString line = content.section('\n', static_cast<int>(value.line - 1), static_cast<int>(value.line - 1));
    return line.mid(static_cast<int>(value.column - 1), length);
}

void expectAsModel(const QString& content, const FResultText& text, FReaderCases& cases) {
    ASSERT_EQ(content, FUtf8::decode(text.text()));
    const FSeparatorSettings separators = cases.separators();
    const std::vector<FValueDescription> values = cases.values(content);
    const FFoundValues found = FValueSearch(values, separators).find(text);
    EXPECT_EQ(FLiteralReader::order(content, values), found.order);
    for (size_t i = 0; i < values.size(); ++i) {
        const FLiteralReader::Found wanted = FLiteralReader::find(content, values[i], separators);
        const FFoundValue& value = found.values[i];
        const QString about = QString("anchor '%1' %2 line %3 column %4 average %5 rows %6 separator %7")
                                  .arg(values[i].anchor.text)
                                  .arg(values[i].anchor.occurrence == FAnchorOccurrence::First ? "first" : "last")
                                  .arg(values[i].line)
                                  .arg(values[i].column)
                                  .arg(values[i].average)
                                  .arg(values[i].averageRows)
                                  .arg(separators.expression());
        const QString foundText = value.textIn(text);
        EXPECT_EQ(wanted.text, foundText) << about.toStdString();
        const quint64 bits =
            wanted.number != wanted.number ? 0x7FF8000000000000 : std::bit_cast<quint64>(wanted.number);
        EXPECT_EQ(bits, std::bit_cast<quint64>(value.number)) << about.toStdString();
        if (value.column >= 0) {
            EXPECT_EQ(foundText, textAt(content, value, foundText.size())) << about.toStdString();
        } else {
            EXPECT_TRUE(foundText.isEmpty() && value.flags != 0) << about.toStdString();
        }
    }
}

}  // namespace

TEST(FValueSearchModelTest, samplesAreReadAsByTheLiteralReader) {
    for (quint32 seed = 0; seed < caseCount() && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FReaderCases cases(seed);
        const QString content = cases.text(seed % 4 == 0);
        expectAsModel(content, FResultText::fromString(content), cases);
    }
}

TEST(FValueSearchModelTest, filesOfAnyBytesAreReadAsByTheLiteralReader) {
    for (quint32 seed = 0; seed < caseCount() && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FReaderCases cases(seed);
        const QByteArray file = cases.file(cases.text(false));
        expectAsModel(FLiteralReader::decode(file), FResultText::fromFile(file), cases);
    }
}

TEST(FValueSearchModelTest, findValueAgreesWithTheLiteralReader) {
    for (quint32 seed = 0; seed < caseCount(); ++seed) {
        SCOPED_TRACE(seed);
        FReaderCases cases(seed);
        const QString text = cases.text(true);
        const FSeparatorSettings separators = cases.separators();
        const FValueDescription value = cases.values(text).front();
        QRegExp ours(separators.expression());
        QRegExp models(separators.expression());
        int start[2];
        int length[2];
        const int result = FGenIntReader::instance()->findValue(
            start[0], length[0], ours, value.line, value.anchor.text, text, value.column, separators.findNumbers);
        EXPECT_EQ(FLiteralReader::findValue(start[1], length[1], models, value.line, value.anchor.text, text,
                                            value.column, separators.findNumbers),
                  result);
        EXPECT_EQ(start[1], start[0]);
        EXPECT_EQ(length[1], length[0]);
        EXPECT_EQ(models.pattern(), ours.pattern());
    }
}

TEST(FValueSearchModelTest, searchesStayWithinATextWhoseBytesChange) {
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
