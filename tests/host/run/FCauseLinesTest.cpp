#include "host/run/FCauseLines.h"
#include "host/run/FInputChanges.h"
#include "host/run/FWrittenFiles.h"
#include "tests/support/FTestFolder.h"

namespace {

class FCauseLinesTest : public testing::Test, public FTestFolder {
 protected:
    std::string linesOf(const QByteArray& errors, const QByteArray& output) {
        write("err", errors);
        write("out", output);
        FCauseLines lines;
        lines.add(path(), "err");
        lines.add(path(), "out");
        lines.add(path(), "none");
        return lines.toText().toStdString();
    }
};

}  // namespace

TEST_F(FCauseLinesTest, causesComeFirstAndNothingTwice) {
    const struct {
        QByteArray errors, output;
        std::string expected;
    } cases[] = {
        {"", "", ""},
        {"no licence\n", "Solver 2\n\nNo licence\nbye\r\n",
         "    err:1: no licence\n    out:3: No licence\n    out:1: Solver 2\n    out:4: bye"},
        {"a\nb\nFATAL: card 4\nc\nd\ne\nf\ng\n", "",
         "    err:3: FATAL: card 4\n    err:1: a\n    err:2: b\n    err:6: e\n    err:7: f\n    err:8: g"},
        // Iterations count as one line, and the last one is shown.
        {"", "step 1 error = 0.5\nstep 2 error = 0.25\nstep 3 error = 0.125\n0 errors\nERROR norm 1.0D-3\n",
         "    out:3: step 3 error = 0.125\n    out:4: 0 errors\n    out:5: ERROR norm 1.0D-3"},
        {"10%\r20%\rnot converged\rlast\n", "",
         "    err:1: not converged\n    err:1: 10%\n    err:1: 20%\n    err:1: last"},
        {QByteArray("Traceback\n  File x\nValueError: \xff\0\n", 33), "",
         "    err:1: Traceback\n    err:3: ValueError: \xef\xbf\xbd\xef\xbf\xbd\n    err:2:   File x"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(linesOf(each.errors, each.output), each.expected)
            << each.errors.constData() << each.output.constData();
    }
}

TEST_F(FCauseLinesTest, ofLargeFilesStartAndEndAreSearched) {
    QByteArray large("first\nerror at the start\n");
    large += QByteArray("x\n").repeated(6 << 20);
    large += "cannot open y\nlast\n";
    EXPECT_EQ(linesOf("", large),
              "    out:2: error at the start\n    out:6291459: cannot open y\n    out:1: first\n"
              "    out:6291458: x\n    out:6291460: last");
    EXPECT_LT(linesOf(QByteArray(50'000, 'y'), "").size(), 300U);
}

TEST_F(FCauseLinesTest, similarFilesAreThoseThatWereWritten) {
    write("hydro.ou", "before");
    const FWrittenFiles files(path());
    for (const char* name : {"HYDRO.out", "sub/hydro.OUT", "hydro.dat", "other.txt", "hydra.OUT"}) {
        write(name, "new");
    }
    EXPECT_EQ(files.similarTo("hydro.OUT"), QStringList({"HYDRO.out", "sub/hydro.OUT", "hydra.OUT"}));
    EXPECT_EQ(files.similarTo("stresses.frd"), QStringList());
}

TEST(FInputChangesTest, listsWhatDiffersFromTheRunBefore) {
    FInputChanges changes;
    const QList<QPair<QMap<QString, QString>, QString>> runs{
        {{{"a", "1"}, {"b", "2"}}, ""},
        {{{"a", "1"}, {"b", "2"}}, ""},
        {{{"a", "1"}, {"b", "3"}, {"c", QString(100, 'x') + "\n"}}, "b = 3, c = " + QString(60, 'x') + "…"},
        {{{"a", "0"}, {"d", "0"}, {"e", "0"}, {"f", "0"}, {"g", "0"}, {"h", "0"}, {"i", "0"}},
         "a = 0, d = 0, e = 0, f = 0, g = 0 and 2 more"},
    };
    for (const auto& [values, expected] : runs) {
        changes.take(values);
        EXPECT_EQ(changes.text().toStdString(), expected.toStdString());
    }
}
