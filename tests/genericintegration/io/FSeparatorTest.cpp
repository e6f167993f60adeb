#include "genericintegration/io/FExpressionTranslator.h"
#include "genericintegration/io/FSeparatorMatches.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <random>

namespace {

class FRandomExpression {
 public:
    explicit FRandomExpression(quint32 seed) : mRandom(seed) {}

    QString expression(int depth = 0) {
        QString text;
        for (int i = below(3); i >= 0; --i) {
            text += atom(depth) + pick({"", "", "", "*", "+", "?", "{2}", "{1,3}", "{2,}"});
        }
        return below(4) == 0 && depth < 3 ? text + '|' + expression(depth + 1) : text;
    }
    QString line() {
        QString text;
        for (int i = below(30); i > 0; --i) {
            text += pick({"a", "b", "c", "1", "2", " ", ",", ";", ".", "\t", "_", "\u00E4", "\u00A0", "\u0663",
                          "\u2003", "\U00010400", "\n"});
        }
        return text;
    }

 private:
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(mRandom); }
    QString pick(const QStringList& texts) { return texts.at(below(texts.size())); }
    QString atom(int depth) {
        if (below(4) == 0 && depth < 3) {
            return (below(2) == 0 ? "(" : "(?:") + expression(depth + 1) + ')';
        }
        // Without lookahead, whose memory QRegExp doesn't free.
        return pick({"a",       "b",   "c",      "1",   ",",   ";",   " ",    ".",     "\\.",    "\\d",
                     "\\D",     "\\s", "\\S",    "\\w", "\\W", "\\t", "[ab]", "[^ab]", "[a-c1]", "[\\s,]",
                     "[^\\d;]", "\\b", "\u00E4", "b",   "\\1", "^",   "$",    "[-,]"});
    }

    std::mt19937 mRandom;
};

}  // namespace

TEST(FSeparatorTest, matchesAsQRegExpDoes) {
    int translated = 0;
    const int cases = randomCases(2000);
    for (int seed = 0; seed < cases && !testing::Test::HasFailure(); ++seed) {
        FRandomExpression random(static_cast<quint32>(seed));
        const QString expression = random.expression();
        QRegExp model(expression);
        const FSeparator separator(expression);
        const FExpressionTranslator translator(expression);
        translated += translator.isTranslated() ? 1 : 0;
        if (translator.isTooLarge()) {
            continue;
        }
        ASSERT_EQ(model.isValid(), separator.error().isEmpty()) << expression.toStdString();
        for (int i = 0; i < 5; ++i) {
            const QString line = random.line();
            FSeparatorMatches matches(separator, line);
            for (int start = 0; start <= line.size(); start += 1 + seed % 3) {
                ASSERT_EQ(model.indexIn(line, start), matches.find(start))
                    << expression.toStdString() << " in " << line.toStdString() << " from " << start;
                ASSERT_EQ(model.matchedLength(), matches.matchedLength())
                    << expression.toStdString() << " in " << line.toStdString() << " from " << start;
            }
        }
    }
    EXPECT_GT(translated, cases / 3);
}

// Tried in all ways, these would take longer than anybody waits.
TEST(FSeparatorTest, noExpressionHangs) {
    const QString line(50000, 'a');
    const struct {
        const char* expression;
        bool isGivenUp;
    } cases[] = {
        {"(a|a?)+b", false}, {"(a*)*b", false}, {"(a|aa)+\\b,", false}, {"(?=a)(a|a?)+b", true}, {"(a+)\\1b", true}};
    for (const auto& row : cases) {
        const FSeparator separator(QString::fromLatin1(row.expression));
        FSeparatorMatches matches(separator, line);
        EXPECT_EQ(-1, matches.find(0)) << row.expression;
        EXPECT_EQ(row.isGivenUp, matches.isGivenUp()) << row.expression;
    }
    EXPECT_FALSE(FSeparator("((a{100}){100}){100}").error().isEmpty());
    EXPECT_FALSE(FSeparator(QString(3000, 'a')).error().isEmpty());
}
