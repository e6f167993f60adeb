#include "genericintegration/io/FSeparatorSettings.h"
#include "genericintegration/marking/FPlaceProposal.h"
#include "genericintegration/marking/FResultSample.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QRegExp>

namespace {

const char* const output =
    "\n"
    " displacements (vx,vy,vz) for set TIP and time  0.1000000E+01\n"
    "\n"
    "         1  0.000000E+00  0.000000E+00  0.000000E+00\n"
    "         2  3.114010E-17  0.000000E+00 -1.489290E+00\n"
    "\n"
    " total force: 1.000000E+02\n"
    " step 1 residual = 1e-2\n"
    " step 2 residual = 1e-5\n"
    " FX = 10.5  FY = 20.5\n"
    " U2 of node 7\n"
    "   8.000000E+05\n";

/** What is proposed for the first place of a text, as "line column anchor occurrence name". */
QString proposed(const QString& text, const QString& number, const FSeparatorSettings& separators = {}) {
    const FResultSample sample(text);
    const auto proposal = FPlaceProposal::at(sample, separators, text.indexOf(number) + 1);
    if (!proposal) {
        return "nothing";
    }
    EXPECT_EQ(text.mid(proposal->range.begin, proposal->range.length), number);
    const FValueDescription& value = proposal->value;
    const QString occurrence = value.anchor.occurrence == FAnchorOccurrence::First ? "First" : "Last";
    return QString("%1 %2 '%3' %4 %5")
        .arg(value.line)
        .arg(value.column)
        .arg(value.anchor.text, value.anchor.text.isEmpty() ? "-" : occurrence, value.name);
}

TEST(FPlaceProposalTest, aTextThatTellsThePlaceIsTheAnchor) {
    const struct {
        const char* number;
        const char* proposed;
    } rows[] = {
        {"-1.489290E+00", "3 3 'displacements (vx,vy,vz) for set TIP and time' First displacements_vx"},
        {"1.000000E+02", "0 0 'total force:' First total_force"},
        {"1e-5", "0 0 'residual =' Last residual"},
        {"1e-2", "0 0 'residual =' First residual"},
        {"20.5", "0 0 'FY =' First FY"},
        {"8.000000E+05", "1 0 'U2 of node' First U"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(proposed(output, row.number).toStdString(), row.proposed);
    }
    EXPECT_EQ(proposed("1 2\n3 4\n", "4"), "1 1 '' - ");
    const QString table = "  step   time (s)  residual\n     1    0.5E+00      0.25\n";
    EXPECT_EQ(proposed(table, "0.25"), "1 2 'step   time (s)  residual' First residual") << "the column's heading";
    EXPECT_EQ(proposed(table, "0.5E+00"), "1 1 'step   time (s)  residual' First time_s");
    const QString csv = "case;mass;\"lift\";note\n;kg;N;\na1;1.5;2.5;ok\na2;3.5;4.5;ok\n";
    EXPECT_EQ(proposed(csv, "4.5"), "0 1 'a2;' First lift") << "the heading on top of its column";
    EXPECT_EQ(proposed(csv, "3.5", {false, false, ";"}), "0 0 'a2;' First mass");
    EXPECT_EQ(proposed("12 values in mm: 1.5 2.5\n", "2.5"), "0 1 'values in mm:' First values_in_mm");
    EXPECT_EQ(proposed("CASE\n 2.5D+02 4.5D+03\n", "4.5"), "1 2 'CASE' First CASE") << "an exponent is no word";
    EXPECT_EQ(proposed("1\n" + QString("2\n").repeated(20000) + "7\n", "7"), "-1 0 '' - ");
    EXPECT_EQ(proposed("a;;-3.5;x\n", "-3.5", {false, false, ";"}), "0 0 'a;;' First a");
    EXPECT_EQ(proposed("word 1x2", "word"), "nothing");
}

TEST(FPlaceProposalTest, anExponentBelongsToTheNumberBeforeIt) {
    const auto numberAt = [](const QString& text, const QString& place) {
        const auto proposal = FPlaceProposal::at(FResultSample(text), {}, text.indexOf(place) + 1);
        return proposal ? text.mid(proposal->range.begin, proposal->range.length) : QString();
    };
    EXPECT_EQ(numberAt("T = 1.5D+03 K", "+03"), "1.5") << "the reader tells that its exponent is missing";
    EXPECT_EQ(numberAt("\u00e4 1.E+06", "+06"), "1");
    EXPECT_EQ(numberAt("1.25-104", "-104"), "1.25");
    EXPECT_EQ(numberAt("1.5 x 10^6 7", "6"), "1.5");
    EXPECT_EQ(numberAt("1.5 x 10^6 7", "7"), "7");
    EXPECT_EQ(numberAt("1.5-2.5", "-2.5"), "-2.5");
    // A value that reads the exponent stays there with another anchor.
    const QString text = "T = 1.5D+03";
    const auto moved = FPlaceProposal::from(FResultSample(text), {}, text.indexOf("+03"), {0, 1});
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->value.column, 1);
}

TEST(FPlaceProposalTest, anotherAnchorKeepsTheNumber) {
    const QString text(output);
    const FResultSample sample(text);
    const auto from = [&](const QString& anchor) {
        return FPlaceProposal::from(sample, {}, text.indexOf("1.000000E+02"), {text.indexOf(anchor), anchor.size()});
    };
    ASSERT_TRUE(from("TIP"));
    EXPECT_EQ(from("TIP")->value.line, 5);
    EXPECT_EQ(from("FX")->value.line, -3);
    EXPECT_FALSE(from("E")) << "it is there before and after";
}

/** The numbers of a text as the reader's lines have them, each with its place in the document. */
std::vector<FTextRange> numbersIn(const QString& text, const FResultSample& sample,
                                  const FSeparatorSettings& separators) {
    std::vector<FTextRange> numbers;
    const QStringList lines = QString(text).remove(QRegExp("\\s*$")).split('\n');
    for (int number = 0; number < lines.size(); ++number) {
        QString line = lines[number];
        line.chop(line.endsWith('\r') ? 1 : 0);
        const QString bare = line.mid(line.indexOf(QRegExp("\\S|$")));
        const auto add = [&](int start, int length) {
            bool isNumber = false;
            bare.midRef(start, length).toDouble(&isNumber);
            if (isNumber) {
                numbers.push_back(sample.rangeOf(number + 1, line.size() - bare.size() + start + 1, length));
            }
        };
        QRegExp pattern(separators.findNumbers ? "[-+]?(\\.\\d+|\\d+(\\.\\d+)?)([Ee][-+]?\\d+)?"
                                               : separators.expression());
        int start = 0;
        for (int at = pattern.indexIn(bare); at >= 0; at = pattern.indexIn(bare, start)) {
            separators.findNumbers ? add(at, pattern.matchedLength()) : add(start, at - start);
            start = at + pattern.matchedLength();
        }
        if (!separators.findNumbers) {
            add(start, bare.size() - start);
        }
    }
    return numbers;
}

TEST(FPlaceProposalTest, theReaderReadsTheVeryNumberThatIsPointedAt) {
    static const QStringList parts{"1",  "2.5e3", "-7",     "x =", "X =",    "word", " ",
                                   "\t", ",",     "\u00a0", "U2",  "(a, b)", "12-3", "\u017fum:"};
    static const QStringList ends{"\n", "\n", "\n", "\r\n", "\r", "\u2028", "\n\n", "\n \n"};
    int count = 0;
    for (int seed = 0; seed < randomCases(3000) && !testing::Test::HasFailure(); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        QString text;
        for (int size = random.bounded(40); size > 0; --size) {
            text += random.bounded(4) == 0 ? ends[random.bounded(ends.size())]
                                           : parts[random.bounded(parts.size())] + QString(random.bounded(2), ' ');
        }
        const FSeparatorSettings settings[] = {{}, {false, true, {}}, {false, false, ","}, {false, true, ","}};
        const FSeparatorSettings& separators = settings[random.bounded(4)];
        const FResultSample sample(text);
        for (const FTextRange& number : numbersIn(text, sample, separators)) {
            const auto proposal = FPlaceProposal::at(sample, separators, number.begin + random.bounded(number.length));
            ASSERT_TRUE(proposal) << seed << ": " << text.toStdString() << " at " << number.begin;
            EXPECT_EQ(proposal->range, number) << seed << ": " << text.toStdString();
            const FFoundValue found = sample.read(proposal->value, separators);
            EXPECT_EQ(sample.rangeOf(found.line, found.column, found.textIn(sample.text()).size()), number)
                << seed << ": " << text.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 3000);
}

}  // namespace
