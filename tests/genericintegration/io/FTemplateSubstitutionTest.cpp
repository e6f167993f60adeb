#include "genericintegration/io/FTemplateSubstitution.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "tests/genericintegration/io/SlowTemplateModel.h"
#include "tests/support/randomCases.h"

namespace {

struct Report {
    FTagOutcome outcome;
    QString name;
    int row;
    qsizetype position;
    FTextPlace place;
};

struct Written {
    QString text;
    std::vector<Report> reports;
    int valuesAsked = 0;
};

Written write(const QString& text, const QMap<QString, SlowTemplateModel::Row>& table, bool force = false) {
    FTemplateKeys keys;
    for (auto row = table.cbegin(); row != table.cend(); ++row) {
        keys.append(row.key(), row->holdsObject);
    }
    Written written;
    FTemplateSubstitution substitution(
        keys,
        [&](int row) {
            ++written.valuesAsked;
            return std::next(table.cbegin(), row)->text;
        },
        [&](QStringView piece) { written.text.append(piece.data(), int(piece.size())); });
    substitution.setForceWindowsLineEndings(force);
    substitution.setObserver([&](const FTagReport& report) {
        written.reports.push_back(
            {report.outcome, report.name.toString(), report.row, report.position, report.place()});
    });
    substitution.run(text);
    return written;
}

TEST(FTemplateSubstitutionTest, keepsNamesApartThatBeginAlike) {
    const auto written = write("<entry>x1</entry>,<entry>x10</entry>,<entry>x1 </entry>,<ENTRY>X1</Entry>",
                               {{"x1", {"one"}}, {"x10", {"ten"}}, {"x1 ", {"blank"}}});
    EXPECT_EQ(written.text, "one,ten,blank,one");
    EXPECT_EQ(written.valuesAsked, 3);
}

TEST(FTemplateSubstitutionTest, neverSearchesWhatWentIn) {
    EXPECT_EQ(write("<entry>a</entry>x</entry> <entry>b</entry>\\0",
                    {{"a", {"<entry>b</entry><entry>"}}, {"b", {"\\0 $1 \\"}}})
                  .text,
              "<entry>b</entry><entry>x</entry> \\0 $1 \\\\0");
}

TEST(FTemplateSubstitutionTest, tellsWhatBecameOfEachTag) {
    const auto written =
        write("a\r\n <entry>typo\n</entry><entry>x</entry>\n\n.<entry>lost", {{"w", {}}, {"x", {"1"}}}, true);
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

/// Texts made of few pieces, so that names, keys and half tags meet often.
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
                                  // letters with two cases outside the basic plane, and their halves
                                  "𐐀", "𐐨", QString(QChar(0xd801)), QString(QChar(0xdc00)), QString(QChar(0xdc28))};
};

TEST(FTemplateSubstitutionTest, agreesWithTheSlowModelOnRandomTemplates) {
    RandomTexts random(20240611);
    int replaced = 0;
    const int rounds = randomCases(20000);
    for (int round = 0; round < rounds; ++round) {
        SlowTemplateModel model;
        for (int row = random.number(12); row > 0; --row) {
            model.table.insert(random.key(),
                               {random.number(5) != 0 ? random.name() : "<entry>", random.number(4) != 0});
        }
        const QString text = random.source(model.table.keys());
        const bool force = random.number(3) == 0;
        SCOPED_TRACE("round " + std::to_string(round) + ": " + text.toStdString());

        const Written written = write(text, model.table, force);
        ASSERT_EQ(written.text, model.write(text, force));
        QStringList unknown;
        for (const Report& report : written.reports) {
            ASSERT_TRUE(text.mid(int(report.position)).startsWith("<entry>", Qt::CaseInsensitive));
            if (report.outcome == FTagOutcome::Unknown) {
                unknown.append(report.name);
            }
            replaced += report.outcome == FTagOutcome::Replaced ? 1 : 0;
        }
        ASSERT_EQ(unknown, model.unknownNames);
        ASSERT_EQ(model.unterminated,
                  !written.reports.empty() && written.reports.back().outcome == FTagOutcome::Unterminated);

        ASSERT_EQ(FTemplateTags::tagNames(text), SlowTemplateModel::names(text, Qt::CaseInsensitive));
        QStringList entryNames = SlowTemplateModel::names(text, Qt::CaseSensitive);
        entryNames.removeDuplicates();
        ASSERT_EQ(FTemplateTags::entryNames(text), entryNames);
        const QString name = random.name();
        ASSERT_EQ(FTemplateTags::renameTag(text, name, "new"),
                  QString(text).replace("<entry>" + name + "</entry>", "<entry>new</entry>", Qt::CaseInsensitive));
    }
    EXPECT_GT(replaced, rounds) << "the random keys and names hardly ever meet";
}

}  // namespace
