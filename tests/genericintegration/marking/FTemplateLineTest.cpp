#include "FLiteralTemplateLine.h"
#include "genericintegration/marking/FFoldedNames.h"
#include "genericintegration/marking/FTemplateLine.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

namespace {

using Mode = FTemplateLine::Mode;

const QStringList knownNames{"a", "Wing|Span", "Exports|in.dat"};

QChar letterOf(FTemplateSpan::Kind kind) {
    return QString("tTkueps")[static_cast<int>(kind)];
}

/** The line as painted, a letter for each character: "t"ag, "T"ag error, "k"nown, ""nknown, "e"rror, "p"ossible, and
 *  "s" for a match of the search. */
QString painted(const QString& text, const FTemplateLine& line) {
    QString letters(text.size(), ' ');
    for (const FTemplateSpan& span : line.spans()) {
        letters.replace(span.start, span.length, QString(span.length, letterOf(span.kind)));
    }
    return letters;
}

struct Row {
    const char* text;
    const char* painted;
    const char* names;   //!< joined by ";"
    const char* values;  //!< what a click replaces, joined by ";"
    Mode mode = Mode::Assisted;
    const char* search = "";
};

QString valuesOf(const FTemplateRegions& regions) {
    QStringList values;
    for (int i = 0; i < regions.possibleValues.size(); ++i) {
        const int start = regions.isPossibleValue(i) ? regions.valueStart(i) : regions.regionStart(i);
        values.append(regions.text(i).mid(start - regions.regionStart(i)));
    }
    return values.join(';');
}

TEST(FTemplateLineTest, linesArePainted) {
    const Row rows[] = {
        {"<entry>A</entry></entry>", "tttttttkttttttttTTTTTTTT", "A", "<entry>A</entry>"},
        {"<entry>wing|span</entry>", "tttttttkkkkkkkkktttttttt", "wing|span", "<entry>wing|span</entry>"},
        {"x <entry>b", "  ttttttte", "", ""},
        {"<entry>a<entry>b</entry>", "ttttttteTTTTTTTutttttttt", "b", "<entry>a<entry>b</entry>"},
        {"Length = 12.5", "ppppppppppppp", "Length", "12.5"},
        {"1.5e3 2.0", "ppppp ppp", ";", "1.5e3;2.0"},
        {"a: e, -, +.", "           ", "", ""},
        {"<entry>a</entry> b=3", "tttttttktttttttt ppp", "a;b", "<entry>a</entry>;3"},
        {"<mass>12</mass>", "      pp       ", "mass", "12"},
        {"<p name=\"mass\">12</p>", "               pp    ", "mass", "12"},
        {"<a><b>5</b></a>", "               ", "", ""},
        {"<entry>b</entry> n=1", "tttttttuttttttttssss", "b", "<entry>b</entry>", Mode::Plain, " n=1"},
    };
    for (const Row& row : rows) {
        const QString text(row.text);
        const FTemplateLine line(text, FFoldedNames(knownNames), row.mode, QRegExp(row.search));
        EXPECT_EQ(painted(text, line), row.painted) << row.text;
        EXPECT_EQ(line.regions().names.join(';'), row.names) << row.text;
        EXPECT_EQ(valuesOf(line.regions()), row.values) << row.text;
    }
}

TEST(FTemplateLineTest, regionIsFoundUpToItsEnd) {
    const FFoldedNames names;
    const FTemplateLine line("key = 1.5 x=2", names, Mode::Assisted);
    EXPECT_EQ(line.regions().indexAt(9), 0);
    EXPECT_EQ(line.regions().indexAt(13), 1);
    EXPECT_EQ(line.regions().indexAt(14), -1);
    EXPECT_EQ(FTemplateLine("a=1 <entry>", names, Mode::Assisted).regions().indexAt(1), -1) << "a tag is left open";
}

TEST(FTemplateLineTest, unusualLinesAndSearchesEnd) {
    const FFoldedNames names;
    EXPECT_TRUE(FTemplateLine("abc", names, Mode::Plain, QRegExp("x*")).spans().empty());
    EXPECT_TRUE(FTemplateLine(QString(FTemplateLine::longest + 1, '1'), names, Mode::Assisted).spans().empty());
}

TEST(FTemplateLineTest, everyCharacterIsOfTheKindThatTheExpressionsSay) {
    const FFoldedNames names;
    for (uint unit = 1; unit <= 0xFFFF; ++unit) {
        const QString text = QString("k%1=1%1<entry>%1</entry>%1 2%1").arg(QChar(unit));
        const QString difference = FLiteralTemplateLine(text, {}, Mode::Assisted, QRegExp())
                                       .difference(FTemplateLine(text, names, Mode::Assisted));
        ASSERT_EQ(difference, QString()) << unit;
    }
}

TEST(FTemplateLineTest, randomLinesAreAnalysedAsByExpressions) {
    const QStringList parts{
        "<entry>", "</entry>", "<ENTRY>", "a",      "b",      "Wing|Span",  "5",     "-1.5e3", ".",
        "e",       "=",        ":",       " ",      "\"",     "<a>",        "</a",   "<a ",    "<a name=\"",
        "name=",   "title=",   "id=",     ">",      "<",      "/",          "|",     "#",      "nan",
        "\t",      "é",        "\u0663",  "\u00a0", "\u0301", "\U0001D7D8", "\u017f"};
    const FFoldedNames names(knownNames);
    const QStringList searches{"", "a", "[a-e]+", "x*", "\\d"};
    for (int seed = 0; seed < randomCases(20000); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        QString text;
        for (int count = random.bounded(1, 14); count > 0; --count) {
            text += parts[random.bounded(parts.size())];
        }
        const QRegExp search(searches[random.bounded(searches.size())]);
        const Mode mode = random.bounded(5) == 0 ? Mode::Plain : Mode::Assisted;
        const FLiteralTemplateLine literal(text, knownNames, mode, search);
        ASSERT_EQ(literal.difference(FTemplateLine(text, names, mode, search)), QString())
            << seed << ": " << text.toStdString();
    }
}

}  // namespace
