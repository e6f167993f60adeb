#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FTemplateSubstitution.h"
#include "tests/genericintegration/io/FTemplateComparison.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

TEST(FTemplateSubstitutionTest, reportsTheOutcomeOfEachTag) {
    const auto written = FTemplateComparison::write("a\r\n <entry>typo\n</entry><entry>x</entry>\n\n.<entry>lost",
                                                    {{"w", {}}, {"x", {"1"}}}, true);
    EXPECT_EQ(written.text, "a\r\r\n 1\r\n\r\n.");
    ASSERT_EQ(written.reports.size(), 3U);

    EXPECT_EQ(written.reports[0].outcome, FTagOutcome::Unknown);
    EXPECT_EQ(written.reports[0].name, "typo\r\n");
    EXPECT_EQ(written.reports[0].position, 4);
    EXPECT_EQ(written.reports[0].place, (FTextPlace{2, 2}));

    EXPECT_EQ(written.reports[1].outcome, FTagOutcome::Replaced);
    EXPECT_EQ(written.reports[1].row, 1);
    EXPECT_EQ(written.reports[1].place, (FTextPlace{3, 9}));

    EXPECT_EQ(written.reports[2].outcome, FTagOutcome::Unterminated);
    EXPECT_EQ(written.reports[2].place, (FTextPlace{5, 2}));
}

TEST(FTemplateSubstitutionTest, survivesAValueThatChangesTheTemplate) {
    QString text = QString("<entry>x</entry>").repeated(2) + "end";
    FTemplateKeys keys;
    keys.append("x", true);
    QString output;
    FTemplateSubstitution substitution(
        keys,
        [&](int) {
            text.fill('?');
            return QString("1");
        },
        [&](QStringView piece) { output.append(piece.data(), int(piece.size())); });
    substitution.run(text);
    EXPECT_EQ(output, "11end");
}

/** Texts made of few pieces, so that names, keys and incomplete tags often match. */
class RandomTexts {
 public:
    explicit RandomTexts(unsigned seed) : mRandom(seed) {}

    int number(int below) { return int(mRandom() % unsigned(below)); }

    QString text(const QStringList& pieces, int longest) {
        QString text;
        for (int count = number(longest + 1); count > 0; --count) {
            text += pieces[number(pieces.size())];
        }
        return text;
    }

    QString name() { return text(mNamePieces, 3); }
    QString key() { return text(mNamePieces + mNamePieces + mKeyPieces, 4); }

    QString source(const QStringList& keys) {
        QString text;
        for (int count = number(12); count > 0; --count) {
            text += number(2) != 0 ? "<entry>" + tagName(keys) + "</entry>" : this->text(mTextPieces + mNamePieces, 3);
        }
        return number(8) != 0 ? text : QString(600, 'x') + text;  // Qt searches long texts in another way
    }

 private:
    QString tagName(const QStringList& keys) {
        const QString name =
            keys.isEmpty() || number(3) == 0 ? this->name() : SlowTemplateModel::nameOfKey(keys[number(keys.size())]);
        const int casing = number(3);
        return casing == 0 ? name : casing == 1 ? name.toUpper() : name.toLower();
    }

    std::mt19937 mRandom;
    const QStringList mTextPieces{"<entry>", "</entry>", "<ENTRY>", "</eNtRy>", "<entry", "</",
                                  "<",       ">",        "\r\n",    "\n",       "\r"};
    const QStringList mKeyPieces{"|", "|", "[", "[0]", "[1]", "]"};
    const QStringList mNamePieces{"x1", "X1", "0", " ", "a", "A", "|", "\n", "ß", "ẞ", "ss", "ſ", "s", "k", "K",
                                  "\u212a", "İ", "i", "I", "ı", "Σ", "ς", "σ", "é", "É", "Ω", "\u2126", "µ", "μ",
                                  QString(QChar('\0')),
                                  // letters with two cases outside the basic plane, and their surrogates
                                  "𐐀", "𐐨", QString(QChar(0xd801)), QString(QChar(0xdc00)), QString(QChar(0xdc28))};
};

TEST(FTemplateSubstitutionTest, agreesWithTheSlowModelOnRandomTemplates) {
    RandomTexts random(20240611);
    std::ptrdiff_t replaced = 0;
    const int rounds = randomCases(20000);
    for (int round = 0; round < rounds; ++round) {
        FTemplateComparison::Table table;
        for (int row = random.number(12); row > 0; --row) {
            table.insert(random.key(), {random.number(5) != 0 ? random.name() : "<entry>", random.number(4) != 0});
        }
        const QString text = random.source(table.keys());
        const bool force = random.number(3) == 0;
        SCOPED_TRACE("round " + std::to_string(round) + ": " + text.toStdString());

        const FTemplateComparison::Written written = FTemplateComparison::write(text, table, force);
        ASSERT_EQ(FTemplateComparison::difference(written, text, table, force), QString());
        ASSERT_EQ(FTemplateComparison::differenceOfNames(text, random.name()), QString());
        replaced += std::count_if(written.reports.begin(), written.reports.end(),
                                  [](const auto& report) { return report.outcome == FTagOutcome::Replaced; });
    }
    EXPECT_GT(replaced, rounds) << "the random keys and names hardly ever match";
}

}  // namespace
